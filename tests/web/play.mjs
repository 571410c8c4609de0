// A game played in the page by mouse.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { place, until } from './browser.mjs';

async function firstVisit({ open, pageFolder, address }) {
  const player = await open();
  await until('a picture', () => player.pixel(60, 60));
  const { origin } = new URL(address);
  for (const url of player.requests) assert.ok(url.startsWith(origin), `asked for ${url}`);
  const sizes = await player.page.evaluate(() => performance.getEntriesByType('resource').concat(
    performance.getEntriesByType('navigation')).map(({ name, decodedBodySize }) => [name, decodedBodySize]));
  const sum = sizes.reduce((all, [, size]) => all + size, 0);
  const packed = sizes.map(([name]) => new URL(name).pathname.split('/').pop() || 'index.html')
    .reduce((all, name) => all + gzipSync(readFileSync(`${pageFolder}/${name}`), { level: 6 }).length, 0);
  const inKilobytes = bytes => `${Math.round(bytes / 1000)} kB`;
  console.log(`a first visit loads ${sizes.length} files, ${inKilobytes(sum)}, ${inKilobytes(packed)} gzipped`);
  assert.ok(sum <= 300000, `${sum} bytes`);
  assert.equal(await player.stored(), null, 'kept something before anything was played');
}

async function selectionToBoard({ open }) {
  const player = await open();
  await player.passTitle(() => player.click({ x: 200, y: 200 }));
  await player.untilTitle('Select a game');
  for (let i = 0; i < 8; ++i) await player.press('Backspace');
  await player.page.keyboard.type('Mira Stone');
  await player.untilNamed('Mira Stone');
  await player.click(place.scenarioTab);
  await player.click(place.listRow(1));
  await player.click(place.start);
  await player.untilTitle('Gloomdeck 1.2');
  const saved = await player.untilSaved('the board', now => now.screen === 2);
  assert.equal(saved.hero, 'Mira Stone');
  assert.equal(saved.player, 'Mira Stone');
  assert.equal(saved.prefs.readInt32LE(40), 1, 'the scenario chosen');
  assert.equal(saved.turns, 0);
}

async function boardByClicks({ open }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const before = await player.now();
  for (let col = 0; col < 7; ++col) {
    await player.click(place.board(col));
    await player.untilSaved(`turn ${col + 1}`, now => now.turns === before.turns + col + 1);
  }
  const after = await player.now();
  assert.ok(after.gold > before.gold);
  for (let col = 0; col < 7; ++col) assert.equal(after.drawn(col), before.drawn(col) + 1, `column ${col}`);
  await player.click(place.board(3, 2));
  assert.equal((await player.now()).turns, after.turns, 'only the bottom row is met');
}

async function screensAndQuestion({ open }) {
  const player = await open();
  await player.startScenario();
  const board = (await player.now()).game;
  await player.click(place.stats(2));
  await player.untilTitle('Train or trade');
  await player.click(place.trainingDone);
  await player.untilTitle('Gloomdeck 1.2');
  await player.press('Shift+H');
  await player.untilTitle('Help');
  await player.press('q');
  await player.untilTitle('Gloomdeck 1.2');
  await player.click(place.exit);
  await until('the question', async () => await player.pixel(124, 210) === 0x708090);
  await player.click(place.no);
  await until('the board again', async () => await player.pixel(124, 210) !== 0x708090);
  assert.deepEqual((await player.now()).game, board);
}

async function endAndAgain({ open }) {
  const player = await open();
  await player.startScenario();
  const before = await player.now();
  await player.press('Shift+Q');
  await until('the question', async () => await player.pixel(124, 210) === 0x708090);
  await player.click(place.yes);
  await player.page.locator('#ended').waitFor({ state: 'visible' });
  assert.deepEqual((await player.stored()).game, before.game);
  await player.page.locator('#again').click();
  await player.page.locator('#ended').waitFor({ state: 'hidden' });
  await player.passTitle();
  await player.untilSaved('the board', now => now.screen === 2);
  await player.click(place.exit);
  await until('the question', async () => await player.pixel(124, 210) === 0x708090);
  assert.deepEqual((await player.now()).game, before.game);
}

// At the highest speed nothing pauses, and yet a key must get through.
async function autoplayerStops({ open }) {
  const player = await open();
  await player.startScenario();
  const saved = (await player.now()).fillWithGold().enrich().lengthenColumns(30000);
  saved.speed = 6;
  saved.switches = 0b11111;
  await player.resume(saved);
  await player.page.evaluate(() => {
    const escape = new KeyboardEvent('keydown', { key: 'Escape', bubbles: true });
    const canvas = document.getElementById('screen');
    const press = () => setTimeout(() => canvas.dispatchEvent(escape), 300);
    canvas.addEventListener('pointerup', press, { once: true });
  });
  await player.click(place.board(0));
  const stopped = await player.untilSaved('a turn', now => now.turns > saved.turns);
  await player.settle();
  assert.equal((await player.now()).turns, stopped.turns);
  assert.ok(stopped.turns < 7 * 30000, 'it played the whole board');
}

export default [
  { name: 'a first visit is small, asks nobody else and keeps nothing', run: firstVisit },
  { name: 'a hero is named and a scenario chosen', run: selectionToBoard },
  { name: 'a board is played by clicks', run: boardByClicks },
  { name: 'training, help and the question', run: screensAndQuestion },
  { name: 'the end says so and offers to play again', run: endAndAgain },
  { name: 'the autoplayer at the highest speed stops for a key', run: autoplayerStops },
];
