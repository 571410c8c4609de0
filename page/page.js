// The page around the game: starting it and starting it again, keeping it, and saying what happened.
import { startGame } from './host.js';
import { layOut } from './layout.js';
import { say, unsay } from './notices.js';
import { Screen } from './screen.js';
import { Store } from './store.js';
import { noteGame, offerTravel, saveAsFile, saveText } from './travel.js';
import { offerTyping } from './typing.js';

const at = id => document.getElementById(id);
const screen = new Screen(at('screen'));
const moduleAddress = document.querySelector('link[rel="preload"]').href;

const takeAway = [['Save it as a file', saveAsFile], ['Close', () => {}]];
const troubles = {
  refused: 'This browser lets the page store nothing: your game lasts as long as the page, or take it away as a file.',
  full: 'The browser’s storage is full: your game is not kept any more. Take it away as a file before you leave.',
};
const saidOnce = new Set();

/// What the tests look into: the run of the game that is on, where it is kept, and the canvas.
export const page = { host: null, store: null, screen };

// Keeping.

function noteResult(result) {
  if (result === 'kept') ['refused', 'full', 'newer'].forEach(unsay);
  if (result === 'newer') offerNewer();
  if (!troubles[result] || saidOnce.has(result)) return;
  saidOnce.add(result);
  say(result, troubles[result], takeAway);
}

function offerNewer() {
  say('newer', 'Another tab has gone on with this game. What is played here is not kept meanwhile.', [
    ['Go on from there', async () => begin(await page.store.read())],
    ['Keep this one instead', () => { page.store.replace(page.host.records); }],
  ]);
}

function keep(records) {
  noteGame(records);
  page.store.put(records);
}

// The records as they are now; none before the game has any.
function currentRecords() {
  page.host?.save();
  const records = page.host?.records ?? {};
  return Object.keys(records).length > 0 ? records : null;
}

function offerDamaged() {
  const text = page.store.damagedItem();
  if (text === null) return;
  say('damaged', 'The game that this browser kept is damaged, and a new one starts. What is left of it can be saved.', [
    ['Save it as a file', () => saveText('Gloomdeck damaged.txt', text)],
    ['Forget it', () => page.store.forgetDamagedItem()],
  ]);
}

// The game's life.

function showFault(error) {
  console.warn(error);
  page.host?.halt();
  at('loading').hidden = true;
  say('fault', 'The game could not go on. Load the page again; where that does not help, its files are missing.', []);
}

function showEnd() {
  const { works } = page.store;
  at('kept').textContent = works ? 'It is kept, and goes on where you left it.' : 'It lasts as long as this page.';
  at('ended').hidden = false;
  at('again').focus();
}

async function begin(records) {
  page.host?.halt();
  page.host = null;
  at('ended').hidden = true;
  at('told').textContent = '';
  screen.canvas.focus({ preventScroll: true });
  try {
    page.host = await startGame(moduleAddress, {
      screen, records, onKeep: keep, onTold: text => { at('told').textContent = text; }, onEnded: showEnd,
      onFault: showFault,
    });
    at('loading').hidden = true;
  } catch (error) {
    showFault(error);
  }
}

// Another page may have kept a later game; without storage this page's own is all there is.
async function playAgain() {
  begin(page.store.works ? await page.store.read() : page.host.records);
}

// What the page needs without a network. It is of no use, and not there, where the page is not safe from others.
function keepPage() {
  navigator.serviceWorker?.register('sw.js', { updateViaCache: 'none' }).catch(() => {});
}

async function start() {
  if (at('loading').classList.contains('notice')) return; // start.js has said why not
  window.addEventListener('error', ({ error }) => { if (error instanceof WebAssembly.RuntimeError) showFault(error); });
  layOut(screen);
  offerTyping(key => page.host?.typeKey(key));
  at('again').addEventListener('click', playAgain);
  page.store = new Store(location.pathname.replace(/index\.html$/, ''), noteResult);
  const records = await page.store.read();
  offerDamaged();
  await begin(records);
  offerTravel({ records: currentRecords, begin, store: page.store });
  keepPage();
}

start();
