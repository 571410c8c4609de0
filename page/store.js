// The game in the browser's storage. Both files are one item, so that two pages never mix theirs, and no page
// overwrites what another one has kept since without being asked to.
import { Journal } from './journal.js';
import { fromItem, isSameButForScreen, toItem } from './records.js';

const usualItem = 800; // characters

export class Store {
  // onResult is told, whenever something was to be kept, 'kept', 'refused', 'full' or 'newer'.
  constructor(path, onResult) {
    this.key = `gloomdeck:${path}`;
    this.journal = new Journal(this.key);
    this.onResult = onResult;
    this.works = true;
    this.kept = null; // what this page read or wrote last
    window.addEventListener('storage', event => this.noteOther(event));
  }

  // Another page of ours has written.
  noteOther({ key, newValue }) {
    if (key === this.key && this.isLater(newValue)) this.onResult('newer');
  }

  isLater(text) {
    if (text === null || text === this.kept) return false;
    const [theirs, ours] = [text, this.kept].map(item => item && fromItem(item));
    return !theirs || !ours || !isSameButForScreen(theirs, ours);
  }

  fail(error) {
    this.works = error?.name === 'QuotaExceededError';
    this.onResult(this.works ? 'full' : 'refused');
  }

  // A store that takes nothing often reads without complaint, and one that is full takes a little.
  probe(text) {
    const more = Math.max(0, usualItem - (text?.length ?? 0));
    localStorage.setItem(`${this.key}?`, ' '.repeat(more));
    localStorage.removeItem(`${this.key}?`);
  }

  // How often anything was kept here: of two items the later one has the higher count.
  count() { return Number(localStorage.getItem(`${this.key}#`)); }

  // After a crash the journal is ahead.
  async recover() {
    const last = await this.journal.read();
    if (!last || last.count <= this.count()) return;
    if (last.text === null) localStorage.removeItem(this.key);
    else localStorage.setItem(this.key, last.text);
    localStorage.setItem(`${this.key}#`, last.count);
  }

  /// The records that are kept, if any; an item that should have been some but is not is set aside.
  async read() {
    let text = null;
    try {
      await this.recover();
      text = localStorage.getItem(this.key);
      this.probe(text);
      this.works = true;
    } catch (error) {
      this.fail(error);
    }
    this.kept = text;
    const records = text === null ? null : fromItem(text);
    if (text !== null && records === null) this.setAside(text);
    return records;
  }

  put(records) {
    const text = toItem(records);
    if (text === this.kept) return;
    try {
      if (this.isLater(localStorage.getItem(this.key))) this.onResult('newer');
      else this.write(text);
    } catch (error) {
      this.fail(error);
    }
  }

  /// Whatever is kept there now, these take its place; none stands for nothing kept.
  replace(records) {
    try {
      this.write(records && toItem(records));
    } catch (error) {
      this.fail(error);
    }
  }

  write(text) {
    const count = this.count() + 1;
    if (text === null) localStorage.removeItem(this.key);
    else localStorage.setItem(this.key, text);
    localStorage.setItem(`${this.key}#`, count);
    this.journal.write(text, count);
    this.kept = text;
    this.works = true;
    this.onResult('kept');
  }

  // What cannot be read stays until the player has had it.

  setAside(text) {
    this.damaged = text;
    try {
      this.write(null);
      localStorage.setItem(`${this.key}!`, text);
    } catch {
      // it lasts as long as this page then
    }
  }

  damagedItem() {
    try {
      this.damaged ??= localStorage.getItem(`${this.key}!`);
    } catch {
      // nothing is kept here at all
    }
    return this.damaged ?? null;
  }

  forgetDamagedItem() {
    this.damaged = undefined;
    localStorage.removeItem(`${this.key}!`);
  }
}
