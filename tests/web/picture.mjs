// How the frame lies on the page, pixel for pixel, and that a page at rest rests.
import assert from 'node:assert/strict';
import { decodePng, launch, place, Player, until } from './browser.mjs';

// Every pixel of the frame is a square of whole device pixels, as many as fit.
async function checkPicture(player) {
  const page = await player.page.evaluate(() => ({ width: innerWidth, height: innerHeight, ratio: devicePixelRatio }));
  const scale = Math.floor(Math.min(page.width * page.ratio / 408, page.height * page.ratio / 488) + 0.001);
  const area = await player.page.locator('#screen').boundingBox();
  const [left, top, width] = [area.x, area.y, area.width].map(value => Math.round(value * page.ratio));
  assert.equal(width, 408 * scale);
  const shown = decodePng(await player.page.screenshot());
  const frame = await player.frame();
  let wrong = 0;
  for (let y = 0; y < 488 * scale; ++y)
    for (let x = 0; x < 408 * scale; ++x)
      if (shown.at(left + x, top + y) !== frame.at(Math.floor(x / scale), Math.floor(y / scale))) ++wrong;
  assert.equal(wrong, 0, `pixels differ from the frame at ${page.width} x ${page.height}, density ${page.ratio}`);
}

// Each density in a browser of its own: one that is merely emulated rounds in another way.
const displays = [
  { density: 1, size: '1280,900' },
  { density: 1.5, size: '900,900' },
  { density: 2, size: '1000,800' },
  { density: 3, size: '500,850' },
];

async function crisp({ address }) {
  for (const { density, size } of displays) {
    const browser = await launch(`--force-device-scale-factor=${density}`, `--window-size=${size}`);
    try {
      const context = await browser.newContext({ viewport: null });
      const player = new Player(await context.newPage(), address);
      await player.load();
      const sharpest = player.page.getByRole('button', { name: 'Sharpest picture' });
      assert.equal(await sharpest.isVisible(), density >= 2, 'small pixels are shown as large as they can be');
      if (density >= 2) await sharpest.click();
      await player.startScenario();
      await player.page.mouse.move(1, 1);
      await player.settle();
      await checkPicture(player);
    } finally {
      await browser.close();
    }
  }
}

// The whole width or the whole height; the words stand below or beside, and every stroke is as strong as the others.
const phones = [
  { width: 390, height: 664, density: 3 },
  { width: 844, height: 340, density: 3 },
  { width: 320, height: 568, density: 2 },
  { width: 412, height: 732, density: 2.625 },
];

// Columns of the white frame of the board: of which share of a device pixel is each line of one pixel of the game?
function lineWeights(shown, left, top, scale) {
  const y = Math.round(top + (40 + 100) * scale);
  const dark = shown.at(Math.round(left + 4 * scale), y) >> 8 & 0xFF;
  return [7, 232].map(x => {
    let sum = 0;
    const first = Math.floor(left + (x - 1) * scale);
    for (let i = first; i <= left + (x + 2) * scale; ++i) sum += Math.max(0, (shown.at(i, y) >> 8 & 0xFF) - dark);
    return sum / (0xF0 - dark) / scale;
  });
}

async function phonesFilled({ browser, address }) {
  for (const { width, height, density } of phones) {
    const options = { viewport: { width, height }, deviceScaleFactor: density, hasTouch: true, isMobile: true };
    const context = await browser.newContext(options);
    const player = new Player(await context.newPage(), address);
    await player.load();
    const area = await player.page.locator('#screen').boundingBox();
    const room = Math.min(width / 408, height / 488);
    assert.ok(Math.abs(area.width - 408 * room) < 1, `${area.width} of ${width} x ${height}`);
    assert.ok(area.y >= 0 && area.y + area.height <= height + 1, `at ${area.y} of ${width} x ${height}`);
    const words = await player.page.locator('h1').boundingBox();
    assert.ok(words.y >= area.y + area.height - 1 || words.x >= area.x + area.width, 'the words are in the way');
    assert.equal(await player.page.evaluate(() => document.documentElement.scrollWidth), width, 'too wide a page');
    const { enlargement, smooth } = await player.page.evaluate(({ screen }) => (
      { enlargement: screen.enlargement, smooth: screen.canvas.classList.contains('smooth') }), await player.inside());
    assert.deepEqual([enlargement, smooth], [Math.ceil(room * density), true]);
    await player.startScenario();
    await player.settle();
    await player.page.evaluate(() => scrollTo(0, 0));
    const shown = decodePng(await player.page.screenshot());
    const weights = lineWeights(shown, area.x * density, area.y * density, area.width * density / 408);
    const [size, lines] = [area.width.toFixed(0), weights.map(one => one.toFixed(2)).join(' and ')];
    console.log(`on ${width} x ${height} the picture is ${size} wide, its lines ${lines} of one`);
    assert.ok(Math.abs(weights[0] - weights[1]) < 0.15, 'strokes are uneven');
    await context.close();
  }
}

// The browser's zoom is a density that changes in a window of as many device pixels.
async function zooming({ open, context }) {
  const player = await open();
  const devtools = await context.newCDPSession(player.page);
  const width = async (zoom, density = 1) => {
    const inside = length => Math.round(length * density / zoom);
    await devtools.send('Emulation.setDeviceMetricsOverride',
      { width: inside(1000), height: inside(900), deviceScaleFactor: zoom, mobile: false });
    await new Promise(resolve => setTimeout(resolve, 300));
    return (await player.page.locator('#screen').boundingBox()).width * zoom;
  };
  const plain = await width(1);
  for (const zoom of [1.1, 1.5, 2, 0.5, 1]) assert.ok(Math.abs(await width(zoom) - zoom * plain) < 1, `at ${zoom}`);
  await width(2);
  const hanging = await player.page.evaluate(() => {
    const heights = ['stage', 'screen'].map(id => document.getElementById(id).getBoundingClientRect().height);
    return heights[0] - heights[1];
  });
  assert.ok(Math.abs(hanging) < 1, 'a bar hangs under the picture');
  await player.page.reload();
  await player.untilRunning();
  assert.ok(Math.abs(await width(2) - 2 * plain) < 1, 'a reload forgot the zoom');
  assert.ok(Math.abs(await width(1) - plain) < 1);
  const other = await width(2, 2);
  assert.ok(Math.abs(other - 2 * plain) < 1, `on a display of twice the density ${other} device pixels`);
}

async function fullScreen({ open }) {
  const player = await open();
  await player.page.getByRole('button', { name: 'Full screen' }).click();
  await until('the full screen', () => player.page.evaluate(() => document.fullscreenElement !== null));
  await player.page.getByRole('button', { name: 'Leave full screen' }).click();
  await until('the window', () => player.page.evaluate(() => document.fullscreenElement === null));
}

async function resizing({ open }) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  for (const [width, height] of [[820, 990], [300, 320], [640, 500]]) {
    const before = await player.now();
    await player.page.setViewportSize({ width, height });
    await until('the page to follow', async () => {
      const area = await player.page.locator('#screen').boundingBox();
      return area.width <= width && area.height <= height + 0.5;
    });
    await player.click(place.board(6));
    const after = await player.untilSaved('the click', now => now.turns > before.turns);
    assert.equal(after.drawn(6), before.drawn(6) + 1, `at ${width} x ${height}`);
  }
}

// What a page costs that nobody touches, of its main thread's processor time; that of the whole process is counted in
// steps of ten milliseconds, too coarse for so little.
async function restingShare(player, context, seconds) {
  const devtools = await context.newCDPSession(player.page);
  await devtools.send('Performance.enable');
  const busy = async () => {
    const { metrics } = await devtools.send('Performance.getMetrics');
    return metrics.find(({ name }) => name === 'ThreadTime').value;
  };
  const start = await busy();
  await new Promise(resolve => setTimeout(resolve, 1000 * seconds));
  return (await busy() - start) / seconds;
}

function countPresents(player) {
  return player.page.evaluate(() => {
    window.presents = 0;
    const { putImageData } = CanvasRenderingContext2D.prototype;
    CanvasRenderingContext2D.prototype.putImageData = function(...given) {
      ++window.presents;
      return putImageData.apply(this, given);
    };
  });
}

async function rest({ open, context }) {
  const player = await open();
  await player.startScenario();
  await countPresents(player);
  await new Promise(resolve => setTimeout(resolve, 1500));
  const presents = () => player.page.evaluate(() => window.presents);
  const before = await presents();
  const share = await restingShare(player, context, 4);
  assert.equal(await presents(), before, 'the same picture was shown again');
  console.log(`at rest the play screen takes ${(100 * share).toFixed(2)} % of a processor`);
  assert.ok(share < 0.002, `${share} of the time`);
  await player.page.mouse.move(...await player.at(place.board(2)));
  await until('a new picture', async () => await presents() > before);
}

// Where a cursor blinks.
async function restOfSelection({ open, context }) {
  const player = await open();
  await player.passTitle();
  await player.untilTitle('Select a game');
  await new Promise(resolve => setTimeout(resolve, 11000));
  const share = await restingShare(player, context, 8);
  console.log(`at rest the selection screen takes ${(100 * share).toFixed(2)} % of a processor`);
  assert.ok(share <= 0.002, `${share} of the time`);
  await player.press('a');
  await player.untilNamed('Alistaira');
}

export default [
  { name: 'the picture is crisp at every density', run: crisp },
  { name: 'the picture fills a phone, with even strokes', run: phonesFilled },
  { name: 'zooming the page zooms the picture', run: zooming },
  { name: 'the page goes to full screen and back', run: fullScreen },
  { name: 'the picture follows the window, and clicks follow it', run: resizing },
  { name: 'a page at rest rests', run: rest },
  { name: 'the selection screen at rest rests', run: restOfSelection },
];
