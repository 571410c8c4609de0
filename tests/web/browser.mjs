// Chromium, the page in it, and what the tests do and see there: places are pixels of the game's frame.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { inflateSync } from 'node:zlib';
import { chromium } from 'playwright-core';

const patience = 20000; // milliseconds; nothing takes nearly as long

const quiet = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync'];

export const launchOptions = { executablePath: process.env.GLOOMDECK_CHROMIUM ?? '/usr/bin/chromium', args: quiet };
export const launch = (...more) => chromium.launch({ ...launchOptions, args: [...quiet, ...more] });

export async function until(what, holds) {
  const end = Date.now() + patience;
  while (!await holds()) {
    if (Date.now() > end) throw new Error(`waited in vain for ${what}`);
    await new Promise(resolve => setTimeout(resolve, 20));
  }
}

// The two files as the page keeps them.

export const place = {
  board: (col, row = 6) => ({ x: 24 + 32 * col, y: 56 + 32 * row }),
  stats: row => ({ x: 260, y: 56 + 32 * row }),
  scenarioTab: { x: 125, y: 16 },
  listRow: row => ({ x: 330, y: 37 + 10 * row }),
  start: { x: 228, y: 208 },
  exit: { x: 368, y: 472 },
  yes: { x: 168, y: 262 },
  no: { x: 240, y: 262 },
  trainingDone: { x: 209, y: 376 },
  toggle: row => ({ x: 124, y: row === 6 ? 314 : 182 + 19 * row }),
};

const goldCode = 0;
const cellAt = (col, row) => 24 + 44 * col + 8 + 4 * row;

export class Saved {
  constructor(text) {
    const item = typeof text === 'string' ? JSON.parse(text) : text;
    this.game = Buffer.from(item['DGDP.dat'], 'base64');
    this.prefs = Buffer.from(item['DGDG.dat'], 'base64');
  }

  text() {
    const item = { 'DGDP.dat': this.game.toString('base64'), 'DGDG.dat': this.prefs.toString('base64') };
    return JSON.stringify(item);
  }

  get hero() { return this.prefs.toString('latin1', 12, 33).replace(/\0.*/, ''); }
  set hero(name) { this.prefs.fill(0, 12, 33).write(name, 12); }
  get player() { return this.game.toString('latin1', 0, 21).replace(/\0.*/, ''); }
  get screen() { return this.prefs.readInt32LE(4); }
  get switches() { return this.prefs.readUInt32LE(48); }
  set switches(bits) { this.prefs.writeUInt32LE(bits, 48); }
  set speed(index) { this.prefs.writeInt32LE(index, 0); }
  get turns() { return this.game.readInt32LE(476); }
  get gold() { return this.game.readInt32LE(376 + 4 * 2); }
  drawn(col) { return this.game.readInt32LE(24 + 44 * col + 4); }

  // Columns that take that much longer to clear.
  lengthenColumns(tiles) {
    for (let col = 0; col < 7; ++col) this.game.writeInt32LE(this.drawn(col) - tiles, 24 + 44 * col + 4);
    return this;
  }

  // Enough of everything to get past any tile.
  enrich() {
    for (let item = 0; item < 9; ++item) this.game.writeInt32LE(30000, 376 + 4 * item);
    return this;
  }

  fillWithGold() {
    for (let col = 0; col < 7; ++col)
      for (let row = 0; row < 7; ++row) this.game.writeInt32LE(goldCode, cellAt(col, row));
    return this;
  }
}

// A page, whose faults and requests are noted.
export class Player {
  constructor(page, address) {
    this.page = page;
    this.address = address;
    this.key = `gloomdeck:${new URL('.', address).pathname}`;
    this.faults = [];
    this.requests = [];
    page.on('pageerror', error => this.faults.push(error.stack));
    page.on('console', message => { if (message.type() === 'error') this.faults.push(message.text()); });
    page.on('request', request => this.requests.push(request.url()));
  }

  async load() {
    await this.page.goto(this.address);
    await this.untilRunning();
  }

  // What the page's script lets be seen: the run of the game and the store.
  inside() {
    return this.page.evaluateHandle(async () => {
      const { src } = document.querySelector('script[type="module"]');
      return (await import(src)).page;
    });
  }

  untilRunning() {
    return until('the game to start', async () => this.page.evaluate(
      page => page.host?.module && document.title !== 'Gloomdeck', await this.inside()).catch(() => false));
  }

  async stored() {
    const text = await this.page.evaluate(key => localStorage.getItem(key), this.key);
    return text === null ? null : new Saved(text);
  }

  // The records of this page as they would be kept now; none before there are any.
  async now() {
    const item = await this.page.evaluate(({ host }) => {
      host.save();
      const files = Object.entries(host.records);
      const encode = bytes => btoa(String.fromCharCode(...bytes));
      return files.length > 0 && Object.fromEntries(files.map(([name, bytes]) => [name, encode(bytes)]));
    }, await this.inside());
    return item && new Saved(item);
  }

  // Until the picture stays the same; the records would tell more, but asking for them keeps them.
  async settle() {
    let last = '';
    let since = Date.now();
    await until('the picture to stay the same', async () => {
      const picture = await this.page.evaluate(() => document.getElementById('screen').toDataURL());
      if (picture !== last) since = Date.now();
      last = picture;
      return Date.now() - since > 400;
    });
  }

  // Another game in the place of the kept one, for the next load.
  async plant(saved) {
    await this.page.evaluate(([page, key, text]) => {
      page.host.halt();
      localStorage.setItem(key, text);
    }, [await this.inside(), this.key, saved.text()]);
  }

  async at({ x, y }) {
    const area = await this.page.locator('#screen').boundingBox();
    return [area.x + (x + 0.5) * area.width / 408, area.y + (y + 0.5) * area.height / 488];
  }

  async click(where) { await this.page.mouse.click(...await this.at(where)); }
  async tap(where) { await this.page.touchscreen.tap(...await this.at(where)); }
  press(key) { return this.page.keyboard.press(key); }
  title() { return this.page.title(); }
  untilTitle(wanted) { return until(`the title '${wanted}'`, async () => await this.title() === wanted); }

  async untilSaved(what, holds) {
    let last = null;
    await until(what, async () => (last = await this.now()) && holds(last));
    return last;
  }

  // Clicks come before keys that were typed earlier, so the name must be there; no name before was as long.
  untilNamed(name) {
    const cursor = 16 + 8 * name.length + 3;
    return until('the name', async () => [0xFFFF00, 0x696969].includes(await this.pixel(cursor, 182)));
  }

  // Past the title picture.
  async passTitle(pass = () => this.press('Escape')) {
    await this.untilRunning();
    await until('the title picture', () => this.pixel(60, 60));
    await pass();
  }

  // A single scenario, which has no story before it.
  async startScenario() {
    await this.passTitle();
    await this.untilTitle('Select a game');
    await this.startScenarioFromList();
  }

  async startScenarioFromList() {
    await this.click(place.scenarioTab);
    await this.click(place.start);
    await this.untilTitle('Gloomdeck 1.2');
    await this.untilSaved('the board', saved => saved.screen === 2);
  }

  // What the game is kept as, and the play screen shows again.
  async resume(saved) {
    await this.plant(saved);
    await this.load();
    await this.passTitle();
    await this.untilSaved('the board', now => now.screen === 2);
  }

  // A part of the frame, to compare with itself.
  async look(x, y, width, height) {
    return this.page.evaluate(
      ([{ screen }, left, top, w, h]) => screen.frameContext.getImageData(left, top, w, h).data.join(),
      [await this.inside(), x, y, width, height]);
  }

  // 0xRRGGBB of the frame.
  async pixel(x, y) {
    const [red, green, blue] = (await this.look(x, y, 1, 1)).split(',').map(Number);
    return red << 16 | green << 8 | blue;
  }

  async frame() {
    const url = await this.page.evaluate(page => page.screen.frame.toDataURL(), await this.inside());
    return decodePng(Buffer.from(url.split(',')[1], 'base64'));
  }
}

// A screenshot's pixels: 8 bits, red, green, blue and maybe alpha.
export function decodePng(png) {
  const width = png.readUInt32BE(16);
  const height = png.readUInt32BE(20);
  const size = png[25] === 6 ? 4 : 3;
  const parts = [];
  for (let i = 8; i < png.length; i += 12 + png.readUInt32BE(i))
    if (png.toString('latin1', i + 4, i + 8) === 'IDAT') parts.push(png.subarray(i + 8, i + 8 + png.readUInt32BE(i)));
  const packed = inflateSync(Buffer.concat(parts));
  const pitch = width * size;
  const rows = Buffer.alloc(pitch * height);
  for (let y = 0; y < height; ++y)
    for (let x = 0; x < pitch; ++x) {
      const left = x < size ? 0 : rows[y * pitch + x - size];
      const up = y === 0 ? 0 : rows[(y - 1) * pitch + x];
      const corner = x < size || y === 0 ? 0 : rows[(y - 1) * pitch + x - size];
      rows[y * pitch + x] = packed[y * (pitch + 1) + 1 + x] + guess(packed[y * (pitch + 1)], left, up, corner);
    }
  const channel = (x, y, index) => rows[y * pitch + x * size + index];
  return { at: (x, y) => channel(x, y, 0) << 16 | channel(x, y, 1) << 8 | channel(x, y, 2) };
}

function guess(filter, left, up, corner) {
  if (filter === 1) return left;
  if (filter === 2) return up;
  if (filter === 3) return left + up >> 1;
  if (filter !== 4) return 0;
  const sum = left + up - corner;
  const [a, b, c] = [left, up, corner].map(value => Math.abs(sum - value));
  if (a <= b && a <= c) return left;
  return b <= c ? up : corner;
}

// Comes back to the play screen and answers what is kept then.
export async function returned(player) {
  await player.passTitle();
  return player.untilSaved('the board', now => now.screen === 2);
}

export async function playTwoTurns(player) {
  const start = (await player.now()).turns;
  for (const col of [1, 4]) {
    const { turns } = await player.now();
    await player.click(place.board(col));
    await player.untilSaved('a turn', now => now.turns > turns);
  }
  assert.equal((await player.now()).turns, start + 2);
}

export async function fileOf(page, id) {
  const [download] = await Promise.all([page.waitForEvent('download'), page.locator(id).click()]);
  return { name: download.suggestedFilename(), contents: readFileSync(await download.path()) };
}
