// Clicks, fingers and keys as they reach the game, and those that the browser keeps.
import assert from 'node:assert/strict';
import { place, until } from './browser.mjs';

async function fastClicks({ open }) {
  const player = await open();
  await player.startScenario();
  await player.press('Shift+P');
  await player.untilTitle('Preferences');
  const before = (await player.now()).switches;
  const rows = Array.from({ length: 100 }, (_, i) => i % 7);
  const places = await Promise.all([0, 1, 2, 3, 4, 5, 6].map(row => player.at(place.toggle(row))));
  await Promise.all(rows.map(row => player.page.mouse.click(...places[row])));
  const odd = [0, 1, 2, 3, 4, 5, 6].filter(row => rows.filter(one => one === row).length % 2 === 1).length;
  await player.settle();
  const flipped = (before ^ (await player.now()).switches) & 0x7F;
  assert.equal(flipped.toString(2).replaceAll('0', '').length, odd);
}

// A press that is dragged off, a release outside, another button: none of them meets a tile.
async function pressesThatAreNoClicks({ open }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const { mouse } = player.page;
  const before = await player.now();
  const look = () => player.look(40, 232, 32, 32);
  const untouched = await look();
  await mouse.move(...await player.at(place.board(1)));
  await mouse.down();
  await until('the pressed look', async () => await look() !== untouched);
  await mouse.move(5, 5);
  await mouse.up();
  await until('the look from before', async () => await look() === untouched);
  await mouse.click(...await player.at(place.board(2)), { button: 'right' });
  await mouse.move(...await player.at(place.board(3)));
  await mouse.down();
  await mouse.move(...await player.at(place.board(4)));
  await mouse.up();
  await player.click(place.board(5));
  const after = await player.untilSaved('the only click', now => now.turns > before.turns);
  assert.deepEqual([1, 2, 3, 4, 5].map(col => after.drawn(col) - before.drawn(col)), [0, 0, 0, 0, 1]);
}

async function keysOfTheBrowser({ open }) {
  const player = await open();
  await player.startScenario();
  await player.page.evaluate(() => {
    window.prevented = [];
    window.addEventListener('keydown', event => {
      window.prevented.push([event.key, event.defaultPrevented]);
      event.preventDefault();
    });
  });
  for (const key of ['Control+Shift+H', 'Alt+Shift+H', 'Meta+Shift+H', 'F2', 'Tab']) await player.press(key);
  await player.page.evaluate(() => document.body.dispatchEvent(
    new KeyboardEvent('keydown', { key: 'H', isComposing: true, bubbles: true, cancelable: true })));
  const taken = [' ', 'ArrowDown', '-'];
  for (const key of taken) await player.press(key);
  for (const [key, prevented] of await player.page.evaluate(() => window.prevented))
    assert.equal(prevented, taken.includes(key), `${key} was ${prevented ? 'taken from' : 'left to'} the browser`);
  await player.untilSaved('the last key', now => now.prefs.readInt32LE(0) === 1);
  assert.equal(await player.title(), 'Gloomdeck 1.2', 'help was opened');
  await player.press('Shift+H');
  await player.untilTitle('Help');
}

// A finger that stays down reads; the tile is met by a tap alone.
async function fingers({ open, context }) {
  const player = await open();
  await player.passTitle(() => player.tap({ x: 200, y: 200 }));
  await player.untilTitle('Select a game');
  await player.page.locator('#typed').tap();
  for (let i = 0; i < 8; ++i) await player.press('Backspace');
  const devtools = await context.newCDPSession(player.page);
  await devtools.send('Input.imeSetComposition', { text: 'Mi', selectionStart: 2, selectionEnd: 2 });
  await player.page.keyboard.insertText('Mira');
  await player.page.keyboard.insertText(' Stone');
  await player.untilNamed('Mira Stone');
  await player.tap(place.scenarioTab);
  await player.tap(place.start);
  await player.untilTitle('Gloomdeck 1.2');
  const saved = await player.untilSaved('the board', now => now.screen === 2);
  assert.equal(saved.hero, 'Mira Stone');
  await player.resume(saved.fillWithGold());
  const [x, y] = await player.at(place.board(3));
  const info = () => player.look(8, 402, 390, 50);
  const silent = await info();
  await devtools.send('Input.dispatchTouchEvent', { type: 'touchStart', touchPoints: [{ x, y }] });
  await until('the description', async () => await info() !== silent);
  await new Promise(resolve => setTimeout(resolve, 700));
  await devtools.send('Input.dispatchTouchEvent', { type: 'touchEnd', touchPoints: [] });
  await player.tap(place.board(5));
  const after = await player.untilSaved('the tap', now => now.turns > saved.turns);
  assert.deepEqual([3, 5].map(col => after.drawn(col) - saved.drawn(col)), [0, 1]);
  await player.tap({ x: 368, y: 472 });
  await until('the question', async () => await player.pixel(124, 210) === 0x708090);
  await player.tap(place.no);
  await until('the board again', async () => await player.pixel(124, 210) !== 0x708090);
}

// What is read out, where the focus is, and who gets the arrow keys.
async function otherReaders({ open }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  const { page } = player;
  assert.equal(await page.getByRole('application', { name: 'Gloomdeck' }).count(), 1);
  const told = page.locator('[aria-live=polite]');
  await page.mouse.move(...await player.at(place.board(2, 3)));
  await until('the description', async () => await told.textContent() === 'Gold');
  await page.mouse.move(...await player.at(place.stats(3)));
  await until('the item', async () => /^Shield.*: ./.test(await told.textContent()));
  await page.mouse.move(1, 1);
  await player.settle();
  const board = () => player.look(100, 180, 200, 100);
  const unasked = await board();
  await player.press('Shift+R');
  await until('the question', async () => await board() !== unasked);
  await player.press('y');
  await until('the message', async () => (await told.textContent()).startsWith('Click on the bottom row'));
  await page.setViewportSize({ width: 1000, height: 560 });
  const scrolled = () => page.evaluate(() => scrollY);
  await page.locator('#screen').focus();
  await player.press('ArrowDown');
  assert.equal(await scrolled(), 0, 'the game\'s own arrow keys scroll');
  await page.locator('#fullscreen').focus();
  await page.evaluate(() => scrollTo(0, 0));
  await player.press('ArrowDown');
  if (await page.evaluate(() => document.documentElement.scrollHeight > innerHeight))
    await until('the page to scroll', async () => await scrolled() > 0);
  for (const id of ['screen', 'fullscreen', 'copy', 'taken']) {
    await page.evaluate(() => { document.getElementById('files').open = true; });
    const look = () => page.locator(`#${id}`).evaluate(one => [one, one.parentElement].map(seen => {
      const { outline, boxShadow } = getComputedStyle(seen);
      return outline + boxShadow;
    }).join());
    await page.evaluate(() => document.activeElement.blur());
    const without = await look();
    await page.keyboard.press('Tab');
    await page.locator(`#${id}`).focus();
    assert.notEqual(await look(), without, `the focus of ${id} is not seen`);
  }
}

const phone = { viewport: { width: 390, height: 844 }, deviceScaleFactor: 3, hasTouch: true, isMobile: true };

export default [
  { name: 'of 100 fast clicks none is lost', run: fastClicks },
  { name: 'presses that are no clicks', run: pressesThatAreNoClicks },
  { name: 'keys that are the browser\'s, and keys that are not', run: keysOfTheBrowser },
  { name: 'every reader is told, and finds the focus', run: otherReaders },
  { name: 'fingers tap, read and type', run: fingers, options: phone },
];
