// The game on its way to another browser and back: as one file, as its two files, as a link. What comes back asks
// first, and can be undone until the next move.
import { ask, say, unsay } from './notices.js';
import {
  checkRecord, describe, fromFile, fromItem, fromLink, isLink, isSameGame, names, toFile, toItem, toLink,
} from './records.js';

const fileName = 'Gloomdeck.game';
const largestTaken = 1 << 20; // bytes; one of ours is far smaller
const undoKey = 'gloomdeck-before';

const at = id => document.getElementById(id);

let page = null; // how it gets at the game: records(), begin(records), store

// Out.

function offerFile(link, bytes) {
  URL.revokeObjectURL(link.href);
  link.href = URL.createObjectURL(new Blob([bytes], { type: 'application/octet-stream' }));
}

function download(name, bytes) {
  const link = document.createElement('a');
  link.download = name;
  offerFile(link, bytes);
  link.click();
}

/// Hands the game to the player as one file, where there is one.
export function saveAsFile() {
  const records = page.records();
  if (records) download(fileName, toFile(records));
}

export const saveText = (name, text) => download(name, new TextEncoder().encode(text));

async function offerGame() {
  const records = page.records();
  at('nofiles').hidden = records !== null;
  at('whole').hidden = at('parts').hidden = records === null;
  if (!records) return;
  offerFile(at('file'), toFile(records));
  names.forEach((name, i) => offerFile(at(`file${i}`), records[name]));
  at('link').value = await toLink(records);
}

async function copyLink() {
  at('link').select();
  await navigator.clipboard?.writeText(at('link').value).catch(() => {});
  at('copy').textContent = 'Copied';
  setTimeout(() => { at('copy').textContent = 'Copy the link'; }, 2000);
}

// In.

async function bytesOf(file) {
  if (file.size > largestTaken) throw new Error(`${file.name} is no game of ours: it is too large.`);
  return new Uint8Array(await file.arrayBuffer());
}

// By the ends of their names: a browser that has one already saves "DGDP (1).dat".
async function readFiles(files) {
  if (files.length === 1 && !/\.dat$/i.test(files[0].name)) return fromFile(await bytesOf(files[0]));
  const records = {};
  for (const name of names) {
    const file = files.find(one => one.name.toUpperCase().startsWith(name.slice(0, 4)));
    if (!file) throw new Error(`Choose both files together; ${name} is missing.`);
    records[name] = checkRecord(name, await bytesOf(file));
  }
  return records;
}

// Kept with the page, so that it outlives a reload.
function rememberUndo(undo) {
  try {
    if (undo) sessionStorage.setItem(undoKey, JSON.stringify(undo));
    else sessionStorage.removeItem(undoKey);
  } catch {
    // it lasts as long as the page then
  }
}

let undo = null; // { before, taken } as items of the storage; before is null where there was no game

function offerUndo() {
  say('undo', 'The game was taken over. Until your next move the one from before can be had back.',
    [['Undo', takeBack], ['Close', () => {}]]);
}

function takeBack() {
  const before = undo.before && fromItem(undo.before);
  forgetUndo();
  page.store.replace(before);
  page.begin(before);
}

function forgetUndo() {
  undo = null;
  rememberUndo(null);
  unsay('undo');
}

/// A move has made another game of the one that was taken over.
export function noteGame(records) {
  if (undo && !isSameGame(records, fromItem(undo.taken))) forgetUndo();
}

function recallUndo(records) {
  try {
    undo = JSON.parse(sessionStorage.getItem(undoKey));
    if (!undo) return;
    if (records && isSameGame(records, fromItem(undo.taken))) offerUndo();
    else forgetUndo();
  } catch {
    forgetUndo();
  }
}

async function take(records) {
  const current = page.records();
  const question = current
    ? `Go on with the game of ${describe(records)}? The game shown here is that of ${describe(current)}; it gives way.`
    : `Go on with the game of ${describe(records)}?`;
  if (!await ask(question, 'Take it', 'Leave it')) return;
  forgetUndo();
  undo = { before: current && toItem(current), taken: toItem(records) };
  rememberUndo(undo);
  page.store.replace(records);
  page.begin(records);
  offerUndo();
}

async function takeFiles(event) {
  const files = [...event.target.files];
  event.target.value = '';
  at('takenbad').hidden = true;
  try {
    const records = await readFiles(files);
    at('files').open = false;
    await take(records);
  } catch (error) {
    at('takenbad').textContent = error.message;
    at('takenbad').hidden = false;
  }
}

// The address loses the game at once: a reload must not bring it back.
async function takeLink() {
  const { href } = location;
  if (!isLink(href)) return;
  history.replaceState(null, '', location.pathname + location.search);
  try {
    await take(await fromLink(href));
  } catch (error) {
    say('badlink', error.message);
  }
}

/// Offers the ways out and in, and takes what the page's own address brings.
export function offerTravel(way) {
  page = way;
  at('files').addEventListener('toggle', event => { if (event.target.open) offerGame(); });
  at('copy').addEventListener('click', copyLink);
  at('taken').addEventListener('change', takeFiles);
  window.addEventListener('hashchange', takeLink);
  recallUndo(page.records());
  takeLink();
}
