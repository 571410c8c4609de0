// What the browser keeps of a game, and the game as files.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { existsSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { chromium } from 'playwright-core';
import { fileOf, launchOptions, place, Player, playTwoTurns, returned, until } from './browser.mjs';

// Nothing but the reload itself and the tab's end make these pages keep anything.
async function reloadAndClosedTab({ open, context, address }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const start = await player.stored();
  await player.click(place.board(0));
  await player.settle();
  await player.page.reload();
  await player.untilRunning();
  const kept = await player.stored();
  assert.equal(kept.turns, start.turns + 1, 'leaving the page kept the turn');
  assert.equal((await returned(player)).text(), kept.text(), 'tile for tile');
  await player.click(place.board(2));
  await player.settle();
  await player.page.close({ runBeforeUnload: true });
  await until('the tab to close', () => player.page.isClosed());
  const next = new Player(await context.newPage(), `${address}index.html`);
  await next.load();
  const after = await next.stored();
  assert.equal(after.turns, start.turns + 2, 'closing the tab kept the turn');
  assert.equal((await returned(next)).text(), after.text(), 'the page is the same by its whole name');
}

// The tab goes on meanwhile, and keeps nothing until it is told which of the games counts.
async function twoTabs({ open }) {
  const first = await open();
  await first.startScenario();
  await first.resume((await first.now()).fillWithGold());
  const second = await open();
  await returned(second);
  assert.equal(await first.page.locator('#newer').count(), 0, 'opening the game again is not going on with it');
  await playTwoTurns(first);
  const ofFirst = (await first.now()).text();
  await second.page.locator('#newer').waitFor();
  await playTwoTurns(second);
  await second.page.reload();
  await second.untilRunning();
  assert.equal((await second.stored()).text(), ofFirst, 'the forgotten tab undid the newer game');
  await returned(second);
  await playTwoTurns(first);
  await second.page.getByRole('button', { name: 'Go on from there' }).click();
  assert.equal((await returned(second)).text(), (await first.now()).text());
  await playTwoTurns(second);
  await first.page.getByRole('button', { name: 'Keep this one' }).click();
  assert.equal((await second.stored()).text(), (await first.now()).text());
  await second.page.locator('#newer').waitFor();
}

// Nobody tells a page that crashes to save.
async function crash({ open, context, address }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const start = await player.stored();
  for (let col = 0; col < 7; ++col) {
    const look = await player.look(24, 40, 224, 224);
    await player.click(place.board(col));
    await until('the turn', async () => await player.look(24, 40, 224, 224) !== look);
  }
  await player.settle();
  await new Promise(resolve => setTimeout(resolve, 1100));
  const devtools = await context.newCDPSession(player.page);
  devtools.send('Page.crash').catch(() => {});
  await player.page.waitForEvent('crash');
  const next = new Player(await context.newPage(), address);
  await next.load();
  assert.equal((await next.stored()).turns, start.turns + 7);
}

// The browser with all that it has not brought to the disk yet.
async function crashOfTheBrowser({ scratch, address }) {
  const { executablePath, args } = launchOptions;
  const profile = join(scratch, 'killed');
  const start = async () => {
    rmSync(join(profile, 'DevToolsActivePort'), { force: true });
    const flags = [...args, '--headless', '--remote-debugging-port=0', `--user-data-dir=${profile}`];
    const program = spawn(executablePath, flags, { stdio: 'ignore' });
    await until('the browser', () => existsSync(join(profile, 'DevToolsActivePort')));
    const [port, path] = readFileSync(join(profile, 'DevToolsActivePort'), 'utf8').split('\n');
    const browser = await chromium.connectOverCDP(`ws://127.0.0.1:${port}${path}`);
    const player = new Player(await browser.contexts()[0].newPage(), address);
    await player.load();
    return { program, player };
  };
  const { program, player } = await start();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const before = (await player.stored()).turns;
  for (const [col, pause] of [[0, 1000], [1, 6000], [2, 1000], [3, 1500]]) {
    await player.click(place.board(col));
    await new Promise(resolve => setTimeout(resolve, pause));
  }
  program.kill('SIGKILL');
  await once(program, 'exit');
  const again = await start();
  const after = (await again.player.stored()).turns;
  again.program.kill();
  await once(again.program, 'exit');
  assert.equal(after - before, 4);
}

// Leaves the storage that many characters.
async function fillStorage(player, left) {
  await player.page.evaluate(room => {
    const fits = text => { try { localStorage.setItem('ballast', text); return true; } catch { return false; } };
    let length = 0;
    for (let step = 1 << 23; step >= 1; step /= 2) if (fits('x'.repeat(length + step))) length += step;
    fits('x'.repeat(length - room));
  }, left);
}

async function fullStorage({ open }) {
  const player = await open();
  await fillStorage(player, 400);
  await player.load();
  await player.page.locator('#full').getByText('storage is full').waitFor();
  await player.startScenario();
  assert.equal(await player.stored(), null);
  const before = await player.now();
  const { name, contents } = await fileOf(player.page, '#full button:first-of-type');
  assert.equal(name, 'Gloomdeck.game');
  assert.ok(contents.includes(before.game) && contents.includes(before.prefs));
  await player.page.evaluate(() => localStorage.removeItem('ballast'));
  await player.press('+');
  await player.untilSaved('the speed', now => now.text() !== before.text());
  assert.equal((await player.stored()).text(), (await player.now()).text(), 'kept as soon as there was room');
  assert.equal(await player.page.locator('#full').count(), 0);
}

// A browser told to let pages keep nothing.
async function refused({ scratch, address }) {
  const profile = join(scratch, 'profile');
  mkdirSync(join(profile, 'Default'), { recursive: true });
  const settings = { profile: { default_content_setting_values: { cookies: 2 } } };
  writeFileSync(join(profile, 'Default', 'Preferences'), JSON.stringify(settings));
  const viewport = { width: 1000, height: 900 };
  const context = await chromium.launchPersistentContext(profile, { ...launchOptions, viewport });
  try {
    const player = new Player(await context.newPage(), address);
    await player.load();
    await assert.rejects(player.page.evaluate(() => typeof localStorage));
    await player.page.locator('#refused').waitFor({ state: 'visible' });
    await player.passTitle();
    await player.press('Enter');
    for (let i = 0; i < 2; ++i) await player.press('Enter');
    await player.untilTitle('Gloomdeck 1.2');
    const before = await player.untilSaved('the board', now => now.screen === 2);
    await player.press('Shift+Q');
    await until('the question', async () => await player.pixel(124, 210) === 0x708090);
    await player.press('y');
    await player.page.locator('#again').click();
    assert.equal((await returned(player)).text(), before.text());
    assert.deepEqual(player.faults, []);
  } finally {
    await context.close();
  }
}

// Damaged, another page's, cut short, and so large that a browser chokes on it.
async function damagedItems({ open }) {
  const player = await open();
  const records = game => JSON.stringify({ 'DGDP.dat': game, 'DGDG.dat': 'A'.repeat(72) });
  for (const text of ['{"DGDP.dat": "no"', '[1, 2, 3]', 'null', records('AAAA'), records('A'.repeat(300000)),
    records(5), 'x'.repeat(2000000)]) {
    await player.plant({ text: () => text });
    await player.load();
    const { name, contents } = await fileOf(player.page, '#damaged button:first-of-type');
    assert.equal(name, 'Gloomdeck damaged.txt');
    assert.equal(contents.toString(), text);
    await player.load();
    await player.page.locator('#damaged').getByRole('button', { name: 'Forget it' }).click();
    await player.passTitle();
    await player.untilTitle('Select a game');
  }
  await player.startScenarioFromList();
  await player.load();
  assert.equal(await player.page.locator('#damaged').count(), 0);
  await returned(player);
}

export default [
  { name: 'a reload and a closed tab go on with the same board', run: reloadAndClosedTab },
  { name: 'of two tabs none undoes what the other one played', run: twoTabs },
  { name: 'a crash costs the last second at most', run: crash },
  { name: 'a crash of the whole browser costs no more', run: crashOfTheBrowser },
  { name: 'storage with room for half a game is noticed', run: fullStorage },
  { name: 'where storage is refused the game plays and the page says so', run: refused },
  { name: 'an item that is not ours starts afresh and can be saved', run: damagedItems },
];
