// The last item once more, where it is on the disk as soon as it is written: browsers bring their local storage there
// when they find the time, which is too late for a crash. It cannot be written while the page goes away, and so it is
// later than the local storage only after a crash.
const patience = 1000; // milliseconds; a game without it is better than none
const table = 'items';

const settled = request => new Promise((resolve, reject) => {
  request.onsuccess = () => resolve(request.result);
  request.onerror = () => reject(request.error);
});

async function open() {
  const request = indexedDB.open('gloomdeck', 1);
  request.onupgradeneeded = () => request.result.createObjectStore(table);
  return settled(request);
}

export class Journal {
  constructor(key) {
    this.key = key;
    this.database = null;
  }

  async items(mode) {
    this.database ??= open();
    return (await this.database).transaction(table, mode, { durability: 'strict' }).objectStore(table);
  }

  /// What was written last, { text, count }, if anything can be read at all.
  async read() {
    const late = new Promise(resolve => { setTimeout(resolve, patience); });
    const read = async () => settled((await this.items('readonly')).get(this.key));
    return Promise.race([read().catch(() => null), late]);
  }

  /// Writes it unless another page has written a later one.
  async write(text, count) {
    try {
      const items = await this.items('readwrite');
      const last = await settled(items.get(this.key));
      if (!(last?.count > count)) items.put({ text, count }, this.key);
    } catch {
      this.database = null; // a crash may cost more than a second now
    }
  }
}
