// The page around the game: how large the picture is, starting and starting again, the game as files, and
// the on-screen keyboard.
'use strict';

const frame = { width: 408, height: 488 };
const roomForWords = { beside: 330, below: 260 }; // CSS pixels
const fileNames = ['DGDP.dat', 'DGDG.dat'];
const fileSizes = [484, 52]; // bytes at least
const largestFile = 65536; // bytes
const fillKey = 'gloomdeck-page:' + location.pathname.replace(/index\.html$/, '');
const typingMark = '\u00A0'; // stands in the field, so that a phone's Backspace has something to delete

const at = id => document.getElementById(id);
const canvas = at('screen');

let module = null;
let storageWorks = true;
let fills = false;

// The picture's size.

function roomInDevicePixels() {
  const page = document.documentElement;
  const ratio = devicePixelRatio;
  return { width: Math.floor(page.clientWidth * ratio + 0.01), height: Math.floor(page.clientHeight * ratio + 0.01) };
}

// The largest whole number of device pixels for each of the frame's; less than one only where none fits.
function scaleFor(room) {
  const largest = Math.min(room.width / frame.width, room.height / frame.height);
  return { whole: largest >= 1 ? Math.floor(largest) : largest, largest };
}

function layOut(width, height) {
  const page = document.documentElement;
  const beside = page.clientWidth - width;
  const below = page.clientHeight - height;
  const isBeside = below < roomForWords.below && beside >= roomForWords.beside;
  document.body.classList.toggle('beside', isBeside);
  document.body.classList.toggle('low', below < 90);
  document.body.classList.toggle('tight', !isBeside && below < 130);
}

function fitPicture() {
  const { whole, largest } = scaleFor(roomInDevicePixels());
  const scale = fills ? largest : whole;
  const inCss = length => length * scale / devicePixelRatio;
  const width = inCss(frame.width);
  const height = inCss(frame.height);
  canvas.style.width = `${width}px`;
  canvas.style.height = `${height}px`;
  canvas.classList.toggle('smooth', scale < 1);
  at('size').hidden = largest / whole < 1.1;
  at('size').textContent = fills ? 'Sharpest picture' : 'Largest picture';
  layOut(width, height);
}

function watchDensity() {
  const query = matchMedia(`(resolution: ${devicePixelRatio}dppx)`);
  query.addEventListener('change', () => { fitPicture(); watchDensity(); }, { once: true });
}

function changeFilling() {
  fills = !fills;
  try {
    localStorage.setItem(fillKey, fills ? 'largest' : 'sharpest');
  } catch {
    // it lasts as long as the page then
  }
  fitPicture();
  canvas.focus({ preventScroll: true });
}

function rememberFilling() {
  try {
    fills = localStorage.getItem(fillKey) === 'largest';
  } catch {
    fills = false;
  }
}

// The game's life.

function say(id, text) {
  at(id).textContent = text;
  at(id).hidden = text === '';
}

function showFault() {
  at('loading').hidden = true;
  say('fault', 'The game could not go on. Load the page again; where that does not help, its files are missing.');
}

function noteStorage(works) {
  storageWorks = works;
  at('refused').hidden = works;
}

function showEnd() {
  say('kept', storageWorks ? 'It is kept, and goes on where you left it.' : 'It lasts as long as this page.');
  at('ended').hidden = false;
  at('again').focus();
}

// Files given take the place of those that the browser keeps.
function start(files) {
  module = null;
  at('ended').hidden = true;
  canvas.focus({ preventScroll: true });
  const locateFile = () => document.querySelector('link[rel="preload"]').href;
  createGloomdeck({ canvas, files, locateFile, onEnded: showEnd, onStorage: noteStorage, onAbort: showFault })
    .then(made => { module = made; at('loading').hidden = true; }, showFault);
}

// Another page may have kept a later game; without storage this page's own is all there is.
function playAgain() {
  start(storageWorks ? null : module.game.files());
}

// The game as files.

function offerFiles() {
  module?.game.leave();
  const files = module && module.game.files();
  at('nofiles').hidden = files !== null;
  fileNames.forEach((name, i) => {
    const link = at(`file${i}`);
    URL.revokeObjectURL(link.href);
    if (files) link.href = URL.createObjectURL(new Blob([files[name]], { type: 'application/octet-stream' }));
    else link.removeAttribute('href');
  });
}

// By the ends of their names: a browser that has one already saves "DGDP (1).dat".
async function readTaken(list) {
  const files = {};
  for (const [i, name] of fileNames.entries()) {
    const file = [...list].find(one => one.name.toUpperCase().startsWith(name.slice(0, 4)));
    if (!file) throw new Error(`Choose both files together; ${name} is missing.`);
    files[name] = new Uint8Array(await file.arrayBuffer());
    const { length } = files[name];
    if (length < fileSizes[i] || length > largestFile)
      throw new Error(`${file.name} is not ours: it has ${length} bytes.`);
  }
  return files;
}

async function takeFiles(event) {
  try {
    const files = await readTaken(event.target.files);
    module?.game.halt();
    at('files').open = false;
    say('takenbad', '');
    start(files);
  } catch (error) {
    say('takenbad', error.message);
  }
  event.target.value = '';
}

// The on-screen keyboard: what the field has taken for good goes to the game.

function resetTyping() {
  at('typed').value = typingMark;
  at('typed').setSelectionRange(1, 1);
}

function passTyping(event) {
  if (event.isComposing) return;
  const text = at('typed').value;
  if (!text.includes(typingMark)) module?.game.typeKey('Backspace', false);
  for (const character of text.replace(typingMark, '')) module?.game.typeKey(character, false);
  resetTyping();
}

function passTypingKey(event) {
  if (event.isComposing || !['Enter', 'Escape'].includes(event.key)) return;
  event.preventDefault();
  module?.game.typeKey(event.key, false);
  at('typed').blur();
}

function offerTyping() {
  const field = at('typed');
  at('typing').hidden = !matchMedia('(any-pointer: coarse)').matches;
  field.addEventListener('focus', resetTyping);
  field.addEventListener('blur', () => { field.value = ''; });
  field.addEventListener('input', passTyping);
  field.addEventListener('compositionend', passTyping);
  field.addEventListener('keydown', passTypingKey);
}

rememberFilling();
fitPicture();
watchDensity();
offerTyping();
window.addEventListener('resize', fitPicture);
at('size').addEventListener('click', changeFilling);
at('again').addEventListener('click', playAgain);
at('files').addEventListener('toggle', event => { if (event.target.open) offerFiles(); });
at('taken').addEventListener('change', takeFiles);
start(null);
