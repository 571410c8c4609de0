// What the browser keeps of a game, and the game as files.
import assert from 'node:assert/strict';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { chromium } from 'playwright-core';
import { launchOptions, place, Player, until } from './browser.mjs';

// Comes back to the play screen and answers what is kept then.
async function returned(player) {
  await player.passTitle();
  return player.untilSaved('the board', now => now.screen === 2);
}

async function playTwoTurns(player) {
  const start = (await player.now()).turns;
  for (const col of [1, 4]) {
    const { turns } = await player.now();
    await player.click(place.board(col));
    await player.untilSaved('a turn', now => now.turns > turns);
  }
  assert.equal((await player.now()).turns, start + 2);
}

// Nothing but the reload itself and the tab's end make these pages keep anything.
async function reloadAndClosedTab({ open, context, address }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const start = await player.stored();
  await player.click(place.board(0));
  await player.settle();
  assert.equal((await player.stored()).turns, start.turns);
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

async function twoTabs({ open }) {
  const first = await open();
  await first.startScenario();
  const planted = (await first.now()).fillWithGold();
  await first.resume(planted);
  const second = await open();
  await returned(second);
  await playTwoTurns(first);
  const ofFirst = (await first.now()).text();
  await second.press('Shift+P');
  await second.untilTitle('Preferences');
  await second.click(place.toggle(6));
  await second.untilSaved('the switch', now => now.switches !== planted.switches);
  await second.press('q');
  const ofSecond = (await second.untilSaved('the board', now => now.screen === 2)).text();
  assert.notEqual(ofSecond, ofFirst);
  assert.equal((await first.stored()).text(), ofSecond);
  assert.equal((await second.now()).turns, planted.turns, 'the second page mixed in the game of the first');
  await first.now();
  assert.equal((await first.stored()).text(), ofSecond, 'a page where nothing happened undid the later save');
  await playTwoTurns(first);
  assert.equal((await second.stored()).text(), (await first.now()).text());
  assert.equal((await first.now()).switches, planted.switches);
}

// A browser told to let pages keep nothing.
async function refused({ scratch, address }) {
  const profile = join(scratch, 'profile');
  mkdirSync(join(profile, 'Default'), { recursive: true });
  const settings = { profile: { default_content_setting_values: { cookies: 2 } } };
  writeFileSync(join(profile, 'Default', 'Preferences'), JSON.stringify(settings));
  const context = await chromium.launchPersistentContext(profile, { ...launchOptions, viewport: { width: 1000, height: 900 } });
  try {
    const player = new Player(await context.newPage(), address);
    await player.load();
    assert.equal(await player.page.evaluate(() => { try { return typeof localStorage; } catch { return 'refused'; } }), 'refused');
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

async function damagedItem({ open }) {
  const player = await open();
  await player.plant({ text: () => '{"DGDP.dat": "no"' });
  await player.load();
  await player.passTitle();
  await player.untilTitle('Select a game');
}

async function fileOf(page, id) {
  const [download] = await Promise.all([page.waitForEvent('download'), page.locator(id).click()]);
  return { name: download.suggestedFilename(), contents: readFileSync(await download.path()) };
}

async function exportAndImport({ open, scratch }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  await playTwoTurns(player);
  await player.page.locator('summary').click();
  const game = await fileOf(player.page, '#file0');
  const prefs = await fileOf(player.page, '#file1');
  const saved = await player.now();
  assert.deepEqual([game.name, prefs.name], ['DGDP.dat', 'DGDG.dat']);
  assert.deepEqual([game.contents, prefs.contents], [saved.game, saved.prefs]);
  await playTwoTurns(player);
  const paths = [join(scratch, 'DGDP (1).dat'), join(scratch, 'DGDG.dat')];
  writeFileSync(paths[0], game.contents);
  writeFileSync(paths[1], prefs.contents);
  await player.page.locator('#taken').setInputFiles(paths[0]);
  await player.page.locator('#takenbad').waitFor({ state: 'visible' });
  assert.equal((await player.now()).turns, saved.turns + 2, 'one file alone changes nothing');
  await player.page.locator('#taken').setInputFiles(paths);
  await player.page.locator('#file0').waitFor({ state: 'hidden' });
  assert.equal((await returned(player)).text(), saved.text());
  await player.load();
  assert.equal((await returned(player)).text(), saved.text());
}

export default [
  { name: 'a reload and a closed tab go on with the same board', run: reloadAndClosedTab },
  { name: 'of two tabs the later save wins whole', run: twoTabs },
  { name: 'where storage is refused the game plays and the page says so', run: refused },
  { name: 'an item that is not ours starts afresh', run: damagedItem },
  { name: 'the game goes out as two files and comes back', run: exportAndImport },
];
