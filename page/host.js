// One run of the game: its module, and what that asks of the machine (platform/host_web.js).
import createGloomdeck from './gloomdeck.js';
import { Input } from './input.js';

const keepInterval = 1000; // milliseconds between two savings of a game that goes on
const restsAfter = 10000; // milliseconds without input, from which on
const restingWait = 2000; // milliseconds is the shortest wait: a blinking cursor is worth no more

let compiled = null; // the module, once: playing again needs no network

async function compile(address) {
  const response = await fetch(address, { credentials: 'same-origin' });
  if (!response.ok) throw new Error(`${address} answers ${response.status}`);
  const module = response.body.pipeThrough(new DecompressionStream('gzip'));
  return WebAssembly.compileStreaming(new Response(module, { headers: { 'Content-Type': 'application/wasm' } }));
}

class Host {
  // The records are the saved files by name; onKeep gets them whenever they may have changed.
  constructor({ screen, records, onKeep, onTold, onEnded }) {
    Object.assign(this, { screen, onKeep, onTold, onEnded });
    this.records = { ...records };
    this.listening = new AbortController();
    this.module = null;
    this.wakeUp = null; // ends the wait for input that goes on
    this.timer = 0;
    this.keeping = 0; // the timer of the next saving
    this.lastKept = -keepInterval;
    this.lastInput = performance.now();
    this.wasPlayed = false; // something has come in since the last saving
  }

  // What the module calls.

  open(width, height) {
    this.screen.size(width, height);
    this.input = new Input(this.screen, () => this.wake(), this.listening.signal);
    const on = (target, type, handler) => target.addEventListener(type, handler, { signal: this.listening.signal });
    on(window, 'pagehide', () => this.save());
    on(document, 'visibilitychange', () => { if (document.visibilityState === 'hidden') this.save(); });
  }

  setTitle(text) { document.title = text; }

  tell(text) { this.onTold(text); }

  paint(image, firstRow) { this.screen.paint(image, firstRow); }

  takeEvent() {
    const event = this.input.events.shift();
    if (event) this.lastInput = performance.now();
    this.wasPlayed ||= event !== undefined;
    return event;
  }

  wait(milliseconds, resume) {
    const go = () => {
      clearTimeout(this.timer);
      this.wakeUp = null;
      resume();
    };
    this.timer = setTimeout(go, Math.ceil(milliseconds)); // a fraction would be dropped, and waited for once more
    return go;
  }

  sleep(milliseconds, resume) { this.wait(milliseconds, resume); }

  awaitInput(milliseconds, resume) {
    if (this.input.events.length > 0) {
      resume();
      return;
    }
    const rests = performance.now() - this.lastInput > restsAfter;
    this.wakeUp = this.wait(rests ? Math.max(milliseconds, restingWait) : milliseconds, resume);
    this.saveSoon();
  }

  // One turn for the browser; unlike a timer, a message waits for nothing.
  breathe(resume) {
    const channel = new MessageChannel();
    channel.port1.onmessage = () => {
      channel.port1.close();
      if (!this.listening.signal.aborted) resume();
    };
    channel.port2.postMessage(0);
  }

  keep() {
    if (Object.keys(this.records).length > 0) this.onKeep(this.records);
  }

  end() {
    this.halt();
    this.onEnded();
  }

  // What the page calls.

  wake() {
    if (this.input.events.length > 0) this.wakeUp?.();
  }

  // As the game was when it rested last.
  save() {
    this.module?._gloomdeckKeep();
    this.lastKept = performance.now();
  }

  // Only a game that rests after something has come in has anything new to keep.
  saveSoon() {
    if (!this.wasPlayed || this.keeping !== 0) return;
    this.keeping = setTimeout(() => {
      this.keeping = 0;
      if (this.wakeUp === null) return;
      this.wasPlayed = false;
      this.save();
    }, Math.max(0, this.lastKept + keepInterval - performance.now()));
  }

  typeKey(key) { this.input?.typeKey(key); }

  // The game stands still for ever, and another may take the canvas.
  halt() {
    this.listening.abort();
    clearTimeout(this.timer);
    clearTimeout(this.keeping);
    this.wakeUp = null;
    this.module = null;
  }
}

/// Starts the game; the answer is its host, once it runs.
export async function startGame(address, options) {
  const host = new Host(options);
  compiled ??= compile(address);
  try {
    const module = await compiled;
    const instantiateWasm = (imports, done) => {
      WebAssembly.instantiate(module, imports).then(done, options.onFault);
      return {};
    };
    host.module = await createGloomdeck({ host, instantiateWasm, onAbort: options.onFault });
  } catch (error) {
    compiled = null;
    throw error;
  }
  return host;
}
