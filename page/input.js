// Pointer and keys as the game takes them: events of a kind and two numbers, in the order of platform/host_web.cpp.
const kinds = { moved: 0, left: 1, button: 2, key: 3, repaint: 4 };
const holdTime = 500; // milliseconds after which a touch reads instead of clicking
const keyCodes = {
  Enter: 13, Escape: 27, Backspace: 8, ArrowUp: 0x148, ArrowDown: 0x150, ArrowLeft: 0x14B, ArrowRight: 0x14D,
};

const typesText = target => target.matches?.('input, textarea, select');
const isControl = target => target.matches?.('a, button, summary, input, textarea, select');

// What the page's own controls and the browser take for themselves.
function belongsToThePage(event) {
  if (event.isComposing || event.keyCode === 229 || event.metaKey) return true;
  const typesCharacter = event.getModifierState('AltGraph') && event.key.length === 1;
  if ((event.ctrlKey || event.altKey) && !typesCharacter) return true;
  if (typesText(event.target) || event.target.closest?.('dialog')) return true;
  return isControl(event.target) && /^(Enter| |Arrow.*)$/.test(event.key);
}

// 0 for a key that the game does not know.
function codeOf(key) {
  if (key.length === 1 && key >= ' ' && key <= '~') return key.charCodeAt(0);
  return keyCodes[key] ?? 0;
}

export class Input {
  // What has come in is told by onInput, until the signal ends it all.
  constructor(screen, onInput, signal) {
    this.screen = screen;
    this.onInput = onInput;
    this.events = [];
    this.holding = 0; // the timer of a touch that may become a long one
    this.listen(signal);
  }

  listen(signal) {
    const { canvas } = this.screen;
    const on = (target, type, handler) => target.addEventListener(type, handler, { signal });
    for (const type of ['pointerdown', 'pointermove', 'pointerup']) on(canvas, type, event => this.notePointer(event));
    on(canvas, 'pointerleave', event => this.noteLeave(event));
    on(canvas, 'pointercancel', event => this.noteCancel(event));
    on(canvas, 'contextmenu', event => event.preventDefault());
    on(canvas, 'contextrestored', () => this.tell(kinds.repaint));
    on(window, 'keydown', event => this.noteKey(event));
    signal.addEventListener('abort', () => clearTimeout(this.holding));
  }

  push(kind, first = 0, second = 0) {
    if (kind === kinds.moved && this.events.at(-1)?.[0] === kind) this.events.pop();
    this.events.push([kind, first, second]);
  }

  tell(...event) {
    this.push(...event);
    this.onInput();
  }

  // The pointer: a mouse or pen as it is; a finger clicks, and reads when it stays down for long.

  notePlace(event) {
    const pixel = this.screen.pixelAt(event.clientX, event.clientY);
    if (pixel) this.push(kinds.moved, pixel.x, pixel.y);
    else this.push(kinds.left);
  }

  // The press is let go outside of everything, so that it clicks nothing.
  abandonPress() {
    clearTimeout(this.holding);
    this.push(kinds.left);
    this.push(kinds.button, 0);
  }

  startHold(event) {
    clearTimeout(this.holding);
    if (event.pointerType !== 'touch') return;
    this.holding = setTimeout(() => {
      this.abandonPress();
      this.notePlace(this.lastTouch);
      this.onInput();
    }, holdTime);
  }

  // A second button that goes down or up shows in a motion; so does a release that the page never saw.
  notePointer(event) {
    if (!event.isPrimary) return;
    this.lastTouch = event;
    this.notePlace(event);
    if (event.type === 'pointerdown') {
      this.screen.canvas.setPointerCapture(event.pointerId);
      this.startHold(event);
    }
    if (event.type === 'pointerup') clearTimeout(this.holding);
    if (event.type !== 'pointermove' || event.pointerType !== 'touch') this.push(kinds.button, event.buttons & 1);
    this.onInput();
  }

  // A finger that was lifted leaves the pointer where it tapped, so that what is there can be read.
  noteLeave(event) {
    if (event.isPrimary && event.pointerType !== 'touch') this.tell(kinds.left);
  }

  noteCancel(event) {
    if (!event.isPrimary) return;
    this.abandonPress();
    this.onInput();
  }

  // Keys.

  noteKey(event) {
    if (belongsToThePage(event)) return;
    if (this.typeKey(event.key, event.repeat)) event.preventDefault();
  }

  typeKey(key, repeats = false) {
    const code = codeOf(key);
    if (code !== 0) this.tell(kinds.key, code, Number(repeats));
    return code !== 0;
  }
}
