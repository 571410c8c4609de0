// How large the picture is, and where the words go. At whole numbers of device pixels for each of the frame's it is
// sharpest; where a pixel of the game would be small it takes all the room instead, smoothed.
const frame = { width: 408, height: 488 };
const roomForWords = { beside: 330, below: 260 }; // CSS pixels
const lowest = { words: 130, extras: 90 }; // CSS pixels below the picture
const smallPixels = 2; // device pixels for each CSS pixel, from which on those of the game are small
const fillKey = `gloomdeck-page:${location.pathname.replace(/index\.html$/, '')}`;
const densityKey = 'gloomdeck-density';

const at = id => document.getElementById(id);
const root = document.documentElement;

let screen = null;
let fills = false;
let density = 1; // device pixels for each CSS pixel where the page is not zoomed
let last = {};

// The page's zoom, which is a change of the density in a window that keeps its size in device pixels; anything else
// that changes the density is another display.

function recall(storage, key) {
  try {
    return window[storage].getItem(key);
  } catch {
    return null;
  }
}

function remember(storage, key, value) {
  try {
    window[storage].setItem(key, value);
  } catch {
    // it lasts as long as the page then
  }
}

function noteDensity() {
  const now = { ratio: devicePixelRatio, pixels: innerWidth * devicePixelRatio };
  const isZoom = Math.abs(now.pixels / last.pixels - 1) < 0.02;
  if (now.ratio !== last.ratio && !isZoom) density *= now.ratio / last.ratio;
  last = now;
  remember('sessionStorage', densityKey, density);
}

const zoom = () => devicePixelRatio / density;

// The picture's size.

function scales() {
  const width = Math.floor(root.clientWidth * devicePixelRatio + 0.01);
  const height = Math.floor(root.clientHeight * devicePixelRatio + 0.01);
  const largest = Math.min(width / frame.width, height / frame.height);
  return { whole: largest >= 1 ? Math.floor(largest) : largest, largest };
}

function placeWords(width, height) {
  const beside = root.clientWidth - width;
  const below = root.clientHeight - height;
  const isBeside = below < roomForWords.below && beside >= roomForWords.beside;
  document.body.classList.toggle('beside', isBeside);
  document.body.classList.toggle('low', below < lowest.extras);
  document.body.classList.toggle('tight', !isBeside && (below < lowest.words || fills));
}

function fit() {
  const { whole, largest } = scales();
  const scale = Math.round((fills ? largest : whole) * zoom() * 1e4) / 1e4;
  const [width, height] = [frame.width, frame.height].map(length => length * scale / devicePixelRatio);
  const isWhole = Number.isInteger(scale);
  screen.canvas.style.width = `${width}px`;
  screen.canvas.style.height = `${height}px`;
  screen.canvas.classList.toggle('smooth', !isWhole);
  const times = isWhole ? 1 : Math.ceil(scale);
  if (times !== screen.enlargement) screen.enlarge(times);
  at('size').hidden = largest / whole < 1.1;
  at('size').textContent = fills ? 'Sharpest picture' : 'Largest picture';
  placeWords(width, height);
}

function refit() {
  noteDensity();
  fit();
}

function watchDensity() {
  const query = matchMedia(`(resolution: ${devicePixelRatio}dppx)`);
  query.addEventListener('change', () => { refit(); watchDensity(); }, { once: true });
}

function changeFilling() {
  fills = !fills;
  remember('localStorage', fillKey, fills ? 'largest' : 'sharpest');
  fit();
  screen.canvas.focus({ preventScroll: true });
}

// Full screen.

function changeFullScreen() {
  if (document.fullscreenElement) document.exitFullscreen();
  else root.requestFullscreen({ navigationUI: 'hide' }).catch(() => {});
  screen.canvas.focus({ preventScroll: true });
}

function showFullScreen() {
  at('fullscreen').textContent = document.fullscreenElement ? 'Leave full screen' : 'Full screen';
}

/// Fits the picture into the window, now and whenever that changes.
export function layOut(shownOn) {
  screen = shownOn;
  last = { ratio: devicePixelRatio, pixels: innerWidth * devicePixelRatio };
  density = Number(recall('sessionStorage', densityKey)) || devicePixelRatio;
  const wish = recall('localStorage', fillKey);
  fills = wish ? wish === 'largest' : density >= smallPixels || matchMedia('(pointer: coarse)').matches;
  fit();
  watchDensity();
  window.addEventListener('resize', refit);
  at('size').addEventListener('click', changeFilling);
  at('fullscreen').hidden = !document.fullscreenEnabled;
  at('fullscreen').addEventListener('click', changeFullScreen);
  document.addEventListener('fullscreenchange', showFullScreen);
}
