#!/usr/bin/env node
// Plays the page in Chromium: drive.mjs BUILD-FOLDER PAGE-FOLDER [PATTERN]. Prints `PASS name` or
// `FAIL name: why` for each test, and its figures.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtempSync, mkdirSync, rmSync, symlinkSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launch, Player } from './browser.mjs';
import firefoxTests from './firefox.mjs';
import inputTests from './input.mjs';
import keepingTests from './keeping.mjs';
import pictureTests from './picture.mjs';
import offlineTests from './offline.mjs';
import playTests from './play.mjs';
import poorTests from './poor.mjs';
import travelTests from './travel.mjs';

const [, pageFolder, pattern = ''] = process.argv.slice(2);
const here = dirname(fileURLToPath(import.meta.url));
const scratch = mkdtempSync(join(tmpdir(), 'gloomdeck-web-'));

// Below a sub-path, as on a host that serves other things too.
async function serve() {
  mkdirSync(join(scratch, 'games'));
  symlinkSync(resolve(pageFolder), join(scratch, 'games', 'gloomdeck'));
  const serving = [join(here, '../../scripts/serve.py'), scratch, '0'];
  const server = spawn('python3', serving, { stdio: ['ignore', 'pipe', 'inherit'] });
  process.on('exit', () => server.kill());
  const [said] = await once(server.stdout, 'data');
  return `${said.toString().trim()}games/gloomdeck/`;
}

// What a test gets: pages of its own browser context, which share their storage.
async function openContext(browser, address, options = {}) {
  const context = await browser.newContext({ viewport: { width: 1000, height: 900 }, ...options });
  const players = [];
  const open = async () => {
    const player = new Player(await context.newPage(), address);
    players.push(player);
    await player.load();
    return player;
  };
  open.elsewhere = async other => {
    const elsewhere = await other.newContext({ viewport: context.pages()[0].viewportSize() });
    const player = new Player(await elsewhere.newPage(), address);
    players.push(player);
    await player.load();
    return player;
  };
  return { context, open, players };
}

async function run(test, browser, address) {
  if (test.skip) {
    console.log(`SKIP ${test.name}: ${test.skip}`);
    return;
  }
  const stage = await openContext(browser, address, test.options);
  try {
    await test.run({ ...stage, browser, address, pageFolder, scratch });
    const faults = stage.players.flatMap(player => player.faults);
    if (faults.length > 0) throw new Error(`the page complained: ${faults.join('; ')}`);
    console.log(`PASS ${test.name}`);
  } catch (error) {
    console.log(`FAIL ${test.name}: ${error.message}`);
    process.exitCode = 1;
  } finally {
    await stage.context.close();
  }
}

process.on('exit', () => rmSync(scratch, { recursive: true, maxRetries: 5 }));
process.on('SIGTERM', () => process.exit(1));
const address = await serve();
const browser = await launch();
const tests = [playTests, keepingTests, travelTests, inputTests, pictureTests, offlineTests, poorTests,
  firefoxTests].flat();
for (const test of tests)
  if (test.name.includes(pattern)) await run(test, browser, address);
await browser.close();
process.exit();
