// The game's two saved files and the forms in which they travel: an item of the browser's storage, one file, a link.
// Whatever comes from outside is checked here; what is none of ours gives an error with a sentence for the player.
export const names = ['DGDP.dat', 'DGDG.dat'];
const sizes = { 'DGDP.dat': 484, 'DGDG.dat': 52 }; // bytes at least
const largest = 65536; // bytes

const mark = new TextEncoder().encode('Gloomdeck game 1\n');
const largestFile = mark.length + names.length * (4 + largest) + 4;
const largestItem = 2 * names.length * largest; // characters

const linkMark = '#game=';

/// The bytes of one file of ours, or an error.
export function checkRecord(name, bytes) {
  if (bytes.length >= sizes[name] && bytes.length <= largest) return bytes;
  throw new Error(`This is no game of ours: ${name} would have ${bytes.length} bytes.`);
}

const isSame = (one, other) => one.length === other.length && one.every((byte, i) => byte === other[i]);

/// Whether both are the same game; only a move or a new game makes another one.
export const isSameGame = (one, other) => isSame(one['DGDP.dat'], other['DGDP.dat']);

// The screen that was open last: it alone makes no later game.
const screenAt = 4;

/// Whether a page would lose nothing that another page has kept.
export function isSameButForScreen(one, other) {
  const [left, right] = [one, other].map(records => {
    const prefs = records['DGDG.dat'].slice();
    prefs.fill(0, screenAt, screenAt + 4);
    return prefs;
  });
  return isSameGame(one, other) && isSame(left, right);
}

/// The hero's name and the turns, to tell games from each other.
export function describe(records) {
  const game = records['DGDP.dat'];
  const name = String.fromCharCode(...game.slice(0, 21)).replace(/\0.*$/s, '').replace(/[^ -~]/g, '?').trim();
  const turns = new DataView(game.buffer, game.byteOffset).getInt32(476, true);
  return `${name || 'a hero without a name'}, ${turns} turns`;
}

// An item of the storage.

const toBase64 = bytes => btoa(Array.from(bytes, byte => String.fromCharCode(byte)).join(''));
const fromBase64 = text => Uint8Array.from(atob(text), character => character.charCodeAt(0));

export const toItem = records =>
  JSON.stringify(Object.fromEntries(names.map(name => [name, toBase64(records[name])])));

/// Null where the item is not one of ours.
export function fromItem(text) {
  if (text.length > largestItem) return null;
  try {
    const item = JSON.parse(text);
    return Object.fromEntries(names.map(name => [name, checkRecord(name, fromBase64(item[name]))]));
  } catch {
    return null;
  }
}

// One file: the mark, each record behind its length, and a check of all that.

function checkSum(bytes) {
  let sum = 0xFFFFFFFF;
  for (const byte of bytes) {
    sum ^= byte;
    for (let bit = 0; bit < 8; ++bit) sum = sum >>> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  return ~sum >>> 0;
}

function number(value) {
  const bytes = new Uint8Array(4);
  new DataView(bytes.buffer).setUint32(0, value, true);
  return bytes;
}

function joined(parts) {
  const bytes = new Uint8Array(parts.reduce((sum, part) => sum + part.length, 0));
  let end = 0;
  for (const part of parts) {
    bytes.set(part, end);
    end += part.length;
  }
  return bytes;
}

export function toFile(records) {
  const body = joined([mark, ...names.flatMap(name => [number(records[name].length), records[name]])]);
  return joined([body, number(checkSum(body))]);
}

/// The records of a file, or an error.
export function fromFile(bytes) {
  if (!isSame(bytes.subarray(0, mark.length), mark)) throw new Error('This is no game of ours.');
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.length);
  const end = bytes.length - 4;
  if (end < mark.length || bytes.length > largestFile || view.getUint32(end, true) !== checkSum(bytes.subarray(0, end)))
    throw new Error('This game is damaged: part of it is missing or another one.');
  const records = {};
  let at = mark.length;
  for (const name of names) {
    if (at + 4 > end) throw new Error('This game is damaged.');
    const length = view.getUint32(at, true);
    records[name] = checkRecord(name, bytes.slice(at + 4, Math.min(at + 4 + length, end)));
    at += 4 + length;
  }
  return records;
}

// A link: the file, packed, behind the "#" of the page's own address, which no server is told.

async function readAll(stream, most) {
  const parts = [];
  let length = 0;
  for (const reader = stream.getReader(); ;) {
    const { value, done } = await reader.read();
    if (done) return joined(parts);
    parts.push(value);
    length += value.length;
    if (length > most) throw new Error('This link holds too much for a game.');
  }
}

const through = (bytes, stream) => new Blob([bytes]).stream().pipeThrough(stream);

export async function toLink(records) {
  const packed = await readAll(through(toFile(records), new CompressionStream('deflate-raw')), largestFile);
  const letters = toBase64(packed).replaceAll('+', '-').replaceAll('/', '_').replaceAll('=', '');
  return `${location.origin}${location.pathname}${linkMark}${letters}`;
}

export const isLink = address => address.includes(linkMark);

/// The records of a link, or an error.
export async function fromLink(address) {
  const letters = address.slice(address.indexOf(linkMark) + linkMark.length);
  let file;
  try {
    const packed = fromBase64(letters.replaceAll('-', '+').replaceAll('_', '/'));
    file = await readAll(through(packed, new DecompressionStream('deflate-raw')), largestFile);
  } catch {
    throw new Error('This link is damaged: part of it is missing.');
  }
  return fromFile(file);
}
