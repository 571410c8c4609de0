// Another engine, where it is installed: a start, a move, a reload, and all that without a server.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { existsSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { firefox } from 'playwright-core';
import { place, Player, returned, until } from './browser.mjs';

const program = process.env.GLOOMDECK_FIREFOX ?? '/usr/bin/firefox-esr';
const server = fileURLToPath(new URL('../../scripts/serve.py', import.meta.url));

async function moveAndReload(player) {
  const before = await player.now();
  await player.click(place.board(3));
  const moved = await player.untilSaved('a turn', now => now.turns > before.turns);
  await until('the turn to be kept', async () => (await player.stored()).turns === moved.turns);
  await player.page.reload();
  await player.untilRunning();
  assert.equal((await returned(player)).text(), moved.text());
}

async function inFirefox({ pageFolder }) {
  const serving = spawn('python3', [server, pageFolder, '0'], { stdio: ['ignore', 'pipe', 'inherit'] });
  const browser = await firefox.launch({ channel: 'moz-firefox', executablePath: program });
  try {
    const [said] = await once(serving.stdout, 'data');
    const context = await browser.newContext({ viewport: { width: 1000, height: 900 } });
    const player = new Player(await context.newPage(), said.toString().trim());
    await player.load();
    await player.startScenario();
    await player.resume((await player.now()).fillWithGold());
    await moveAndReload(player);
    await player.page.evaluate(async () => { await navigator.serviceWorker.ready; });
    serving.kill();
    await once(serving, 'exit');
    await player.page.reload();
    await returned(player);
    await moveAndReload(player);
    assert.deepEqual(player.faults, []);
  } finally {
    serving.kill();
    await browser.close();
  }
}

export default [
  { name: 'a start, a move, a reload and no network in Firefox', run: inFirefox,
    skip: existsSync(program) ? '' : `${program} is missing; Debian's package firefox-esr has it` },
];
