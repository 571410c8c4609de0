// Slow lines, poor hosts and old browsers.
import assert from 'node:assert/strict';
import { readdirSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import { Player, until } from './browser.mjs';

const slowLine = { offline: false, latency: 150, downloadThroughput: 1.6e6 / 8, uploadThroughput: 0.75e6 / 8 };

async function slowFirstVisit({ context, address }) {
  const player = new Player(await context.newPage(), address);
  const devtools = await context.newCDPSession(player.page);
  await devtools.send('Network.enable');
  await devtools.send('Network.emulateNetworkConditions', slowLine);
  await devtools.send('Emulation.setCPUThrottlingRate', { rate: 4 });
  const start = Date.now();
  await player.page.goto(address, { waitUntil: 'commit' });
  await player.page.waitForFunction(() => {
    const canvas = document.getElementById('screen');
    return canvas && canvas.getContext('2d', { alpha: false }).getImageData(canvas.width / 7, canvas.height / 7, 1, 1)
      .data.some((value, i) => i < 3 && value > 0);
  }, null, { polling: 50 });
  const seconds = (Date.now() - start) / 1000;
  console.log(`the first picture is there after ${seconds.toFixed(1)} s at 1.6 Mbit/s and a quarter of the speed`);
  assert.ok(seconds <= 3, `${seconds} s`);
}

const sentence = page => page.locator('.notice:visible').first().innerText();

// Whichever of its files is missing.
async function missingFiles({ browser, address, pageFolder }) {
  const isNeeded = name => /\.(js|pack)$/.test(name) && !['sw.js', 'start.js'].includes(name);
  const needed = readdirSync(pageFolder).filter(isNeeded);
  assert.ok(needed.length > 8);
  for (const name of needed) {
    const context = await browser.newContext();
    const page = await context.newPage();
    await page.route(`**/${name}?*`, route => route.abort());
    await page.goto(address);
    await until(`a word about ${name}`, async () => /missing/.test(await sentence(page).catch(() => '')));
    await context.close();
  }
}

async function oldBrowser({ context, address }) {
  const page = await context.newPage();
  await page.addInitScript(() => { delete window.CompressionStream; delete window.DecompressionStream; });
  await page.goto(address);
  assert.match(await sentence(page), /too old.*Firefox \d+/);
}

async function fromAFolder({ context, pageFolder }) {
  const page = await context.newPage();
  await page.goto(pathToFileURL(`${pageFolder}/index.html`).href);
  assert.match(await sentence(page), /server/);
}

async function noScript({ context, address }) {
  const page = await context.newPage();
  await page.goto(address);
  assert.match(await sentence(page), /needs JavaScript/);
}

// Not even the script that says what is missing.
async function noAnswer({ context, address }) {
  const page = await context.newPage();
  await page.route('**/*.js?*', () => {});
  await page.goto(address, { waitUntil: 'commit' });
  const late = page.locator('.late');
  await late.waitFor({ state: 'attached' });
  await until('the style that hides them', async () => !(await late.isVisible()));
  await until('the words', async () => {
    await late.evaluate(words => { for (const wait of words.getAnimations()) wait.currentTime = 15001; });
    return late.isVisible();
  });
}

export default [
  { name: 'a first visit over a slow line', run: slowFirstVisit },
  { name: 'a file that is missing is told', run: missingFiles },
  { name: 'a browser that is too old is told', run: oldBrowser },
  { name: 'a page that comes from no server is told', run: fromAFolder },
  { name: 'a browser without scripts is told', run: noScript, options: { javaScriptEnabled: false } },
  { name: 'a server that answers nothing is told', run: noAnswer },
];
