// The game on its way to another browser and back: as one file, as two, as a link.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileOf, place, playTwoTurns, returned, until } from './browser.mjs';

// What a browser takes for a module from its page, every Node takes for one from an address of data.
const records = readFileSync(new URL('../../page/records.js', import.meta.url), 'utf8');
const { toFile } = await import(`data:text/javascript,${encodeURIComponent(records)}`);

async function openRich(open) {
  const player = await open();
  await player.startScenario();
  await player.resume((await player.now()).fillWithGold());
  return player;
}

const openTravel = player => player.page.locator('summary').click();
const give = (player, ...paths) => player.page.locator('#taken').setInputFiles(paths);
const answer = (player, label) => player.page.getByRole('button', { name: label, exact: true }).click();
const isSaid = (player, id) => player.page.locator(`#${id}`).waitFor({ state: 'visible' });
const isUnsaid = (player, id) => player.page.locator(`#${id}`).waitFor({ state: 'hidden' });

async function oneFile({ open, scratch }) {
  const player = await openRich(open);
  await openTravel(player);
  const { name, contents } = await fileOf(player.page, '#file');
  assert.equal(name, 'Gloomdeck.game');
  const path = join(scratch, name);
  writeFileSync(path, contents);
  const saved = await player.now();
  await playTwoTurns(player);
  const later = await player.now();
  await give(player, path);
  await answer(player, 'Leave it');
  assert.equal((await player.now()).text(), later.text(), 'it was taken without consent');
  await openTravel(player);
  await give(player, path);
  await answer(player, 'Take it');
  assert.equal((await returned(player)).text(), saved.text());
  await player.page.reload();
  await player.untilRunning();
  await answer(player, 'Undo');
  assert.equal((await returned(player)).text(), later.text(), 'what was undone after a reload');
  await openTravel(player);
  await give(player, path);
  await answer(player, 'Take it');
  await returned(player);
  await isSaid(player, 'undo');
  await player.click(place.board(3));
  await isUnsaid(player, 'undo');
}

async function twoFiles({ open, scratch }) {
  const player = await openRich(open);
  await playTwoTurns(player);
  await openTravel(player);
  const game = await fileOf(player.page, '#file0');
  const prefs = await fileOf(player.page, '#file1');
  const saved = await player.now();
  assert.deepEqual([game.name, prefs.name], ['DGDP.dat', 'DGDG.dat']);
  assert.deepEqual([game.contents, prefs.contents], [saved.game, saved.prefs]);
  await playTwoTurns(player);
  const paths = [join(scratch, 'DGDP (1).dat'), join(scratch, 'DGDG.dat')];
  writeFileSync(paths[0], game.contents);
  writeFileSync(paths[1], prefs.contents);
  await give(player, paths[0]);
  await isSaid(player, 'takenbad');
  assert.equal((await player.now()).turns, saved.turns + 2, 'one file alone changes nothing');
  await give(player, ...paths);
  await answer(player, 'Take it');
  assert.equal((await returned(player)).text(), saved.text());
}

// One bit or byte less anywhere, another kind of file, and one that is far too large.
async function junkFiles({ open, scratch }) {
  const player = await openRich(open);
  await openTravel(player);
  const { contents } = await fileOf(player.page, '#file');
  const flipped = at => {
    const copy = Buffer.from(contents);
    copy[at] ^= 1;
    return copy;
  };
  const junk = [Buffer.alloc(0), Buffer.alloc(536, 7), contents.subarray(0, -1), Buffer.alloc(2 << 20, contents),
    ...[0, 18, 30, 500, contents.length - 1].map(flipped)];
  const before = await player.now();
  const path = join(scratch, 'junk.game');
  for (const [i, bytes] of junk.entries()) {
    await player.page.evaluate(() => { document.getElementById('takenbad').hidden = true; });
    writeFileSync(path, bytes);
    await give(player, path);
    await isSaid(player, 'takenbad').catch(() => assert.fail(`junk ${i} was not refused`));
  }
  assert.equal((await player.now()).text(), before.text());
}

// Files that are whole, whatever their records hold.
async function wildRecords({ open, scratch }) {
  const player = await openRich(open);
  const saved = await player.now();
  const path = join(scratch, 'wild.game');
  let state = 12345;
  const random = () => (state = Math.imul(state, 1103515245) + 12345 >>> 0) >>> 16;
  const wildly = (bytes, share) => bytes.map(byte => random() % share === 0 ? random() & 0xFF : byte);
  for (const share of [1, 8, 64]) {
    const wild = toFile({ 'DGDP.dat': wildly(saved.game, share), 'DGDG.dat': wildly(saved.prefs, share) });
    writeFileSync(path, wild);
    await give(player, path);
    await answer(player, 'Take it');
    await player.passTitle();
    await player.untilSaved('the game', now => [1, 2].includes(now.screen));
    for (let col = 0; col < 7; ++col) await player.click(place.board(col));
    await player.settle();
    assert.equal(await player.page.locator('#fault').count(), 0);
  }
}

// Sent to somebody else, who has a game too.
async function toAFriend({ open, browser, address }) {
  const player = await openRich(open);
  await playTwoTurns(player);
  await openTravel(player);
  await until('the link', () => player.page.locator('#link').inputValue());
  const link = await player.page.locator('#link').inputValue();
  console.log(`a link to a game has ${link.length - address.length} characters more than the page's address`);
  assert.ok(link.startsWith(`${address}#game=`), link);
  const saved = await player.now();
  const friend = await open.elsewhere(browser);
  await friend.startScenario();
  const own = await friend.now();
  await friend.page.goto(link);
  await friend.page.locator('#questionText').getByText(`Alistair, ${saved.turns} turns`).waitFor();
  await answer(friend, 'Take it');
  assert.equal((await returned(friend)).text(), saved.text());
  assert.ok(!friend.page.url().includes('#'), 'a reload would ask again');
  await answer(friend, 'Undo');
  assert.deepEqual((await returned(friend)).game, own.game);
  assert.ok(!player.requests.concat(friend.requests).some(url => new URL(url).search.includes('game')));
  for (const damaged of [link.slice(0, -3), link.replace(/.(.{9})$/, '$1'), `${address}#game=`, `${address}#game=%00`,
    `${address}#game=<img src=x onerror=alert(1)>`]) {
    await friend.page.goto('about:blank');
    await friend.page.goto(damaged);
    await friend.page.locator('#badlink').waitFor({ state: 'visible' });
  }
}

// A little that unpacks to very much.
async function linkBomb({ open, address }) {
  const player = await open();
  const { deflateRawSync } = await import('node:zlib');
  const bomb = deflateRawSync(Buffer.alloc(64 << 20)).toString('base64url');
  await player.page.goto('about:blank');
  await player.page.goto(`${address}#game=${bomb}`);
  await player.page.locator('#badlink').waitFor({ state: 'visible' });
}

export default [
  { name: 'the game goes out as one file and comes back, which can be undone', run: oneFile },
  { name: 'the game goes out as two files and comes back', run: twoFiles },
  { name: 'files that are none of ours are refused', run: junkFiles },
  { name: 'whatever a file holds, the game plays on', run: wildRecords },
  { name: 'a link takes the game to another browser', run: toAFriend },
  { name: 'a link that unpacks to too much is refused', run: linkBomb },
];
