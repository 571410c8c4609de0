// Without a network, and when the page is published anew.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { cpSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { decodePng, Player, playTwoTurns, returned, until } from './browser.mjs';

const top = fileURLToPath(new URL('../..', import.meta.url));

const untilKept = player => until('the page to be kept', () => player.page.evaluate(
  async () => (await navigator.serviceWorker.getRegistration())?.active?.state === 'activated'));

async function offline({ open, context }) {
  const player = await open();
  await untilKept(player);
  await context.setOffline(true);
  await player.load();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  await playTwoTurns(player);
  const saved = await player.now();
  await player.page.reload();
  assert.equal((await returned(player)).text(), saved.text());
}

// What a start has loaded, by its version.
const versions = player => player.page.evaluate(() => [...new Set(performance.getEntriesByType('resource')
  .map(({ name }) => new URL(name).searchParams.get('v')).filter(Boolean))]);

async function startAgain(player) {
  player.faults.length = 0;
  await player.page.goto('about:blank');
  await player.load();
  const [version, ...others] = await versions(player);
  assert.deepEqual(others, [], 'two versions were mixed');
  return version;
}

// The same page with another word in it.
function publish(scratch, folder, word) {
  const page = join(scratch, 'page');
  cpSync(join(top, 'page'), page, { recursive: true });
  const html = readFileSync(join(page, 'index.html'), 'utf8').replace('Seven columns', `${word} columns`);
  writeFileSync(join(page, 'index.html'), html);
  const parts = [page, join(top, 'build/web'), join(top, 'build/web/icons'), folder];
  execFileSync('python3', [join(top, 'scripts/stage_page.py'), ...parts]);
}

async function publishedAnew({ context, address, scratch }) {
  const folder = join(scratch, 'games', 'anew');
  publish(scratch, folder, 'Eight');
  const player = new Player(await context.newPage(), new URL('../anew/', address).href);
  await player.load();
  await untilKept(player);
  const first = await startAgain(player);
  assert.deepEqual(player.requests.filter(url => url.endsWith('.pack')), []);
  const old = readFileSync(join(folder, 'page.js'));
  const update = () => player.page.evaluate(async () => {
    const registration = await navigator.serviceWorker.getRegistration();
    await registration.update();
    const { installing } = registration;
    if (installing) await new Promise(resolve => installing.addEventListener('statechange', () => {
      if (['activated', 'redundant'].includes(installing.state)) resolve();
    }));
  }).catch(() => {});
  publish(scratch, folder, 'Nine');
  const fresh = readFileSync(join(folder, 'page.js'));
  writeFileSync(join(folder, 'page.js'), old);
  await update();
  assert.equal(await startAgain(player), first, 'a version that is half there was taken up');
  writeFileSync(join(folder, 'page.js'), fresh);
  await update();
  assert.notEqual(await startAgain(player), first, 'the new version was not taken up');
  assert.equal(await player.page.getByText('Nine columns').count(), 1);
  const caches = await player.page.evaluate(() => window.caches.keys());
  assert.equal(caches.filter(name => name.includes('/anew/')).length, 1, 'the old version is still kept');
}

function pngSize(file) {
  const png = readFileSync(file);
  return [png.readUInt32BE(16), png.readUInt32BE(20)];
}

async function installable({ open, pageFolder, context }) {
  const player = await open();
  await untilKept(player);
  const devtools = await context.newCDPSession(player.page);
  const { errors, data } = await devtools.send('Page.getAppManifest');
  assert.deepEqual(errors, []);
  const manifest = JSON.parse(data);
  for (const { src, sizes } of manifest.icons)
    assert.equal(pngSize(join(pageFolder, src)).join('x'), sizes, src);
  assert.deepEqual(pngSize(join(pageFolder, 'icon-apple.png')), [180, 180]);
  assert.deepEqual(pngSize(join(pageFolder, 'preview.png')), [1200, 630]);
  const { installabilityErrors } = await devtools.send('Page.getInstallabilityErrors');
  assert.deepEqual(installabilityErrors.filter(({ errorId }) => errorId !== 'in-incognito'), []);
  const corner = decodePng(readFileSync(join(pageFolder, 'icon-maskable.png'))).at(0, 0);
  assert.equal(corner, 0x1d2b27, 'the maskable icon reaches the corners');
}

export default [
  { name: 'it starts and plays without a network after one visit', run: offline },
  { name: 'a version published anew is taken up whole or not at all', run: publishedAnew },
  { name: 'the page can be installed', run: installable },
];
