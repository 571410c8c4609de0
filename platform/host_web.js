// What host_web.cpp and files_web.cpp call, handed on to the `host` that the page passes in (page/host.js): texts
// and memory become what a page works with, and waits put the game's stack aside.
mergeInto(LibraryManager.library, {
  gloomdeckOpen: function(width, height) {
    Module['host'].open(width, height);
  },

  gloomdeckTitle: function(title) {
    Module['host'].setTitle(UTF8ToString(title));
  },

  gloomdeckTell: function(text) {
    Module['host'].tell(UTF8ToString(text));
  },

  gloomdeckWarn: function(line) {
    console.error(UTF8ToString(line));
  },

  gloomdeckPaint: function(pixels, width, firstRow, rows) {
    const bytes = new Uint8ClampedArray(HEAPU8.buffer, pixels, 4 * width * rows);
    Module['host'].paint(new ImageData(bytes, width, rows), firstRow);
  },

  gloomdeckTakeEvent: function(event) {
    const next = Module['host'].takeEvent();
    if (next) HEAP32.set(next, event >> 2);
    return next ? 1 : 0;
  },

  // A page's own clock starts at nearly the same moment every time.
  gloomdeckSeconds: function() {
    return (performance.timeOrigin + performance.now()) / 1000;
  },

  gloomdeckSleep__deps: ['$Asyncify'],
  gloomdeckSleep: function(milliseconds) {
    return Asyncify.handleSleep(resume => Module['host'].sleep(milliseconds, resume));
  },

  gloomdeckAwaitInput__deps: ['$Asyncify'],
  gloomdeckAwaitInput: function(milliseconds) {
    return Asyncify.handleSleep(resume => Module['host'].awaitInput(milliseconds, resume));
  },

  gloomdeckBreathe__deps: ['$Asyncify'],
  gloomdeckBreathe: function() {
    return Asyncify.handleSleep(resume => Module['host'].breathe(resume));
  },

  gloomdeckRest__deps: ['$Asyncify'],
  gloomdeckRest: function() {
    return Asyncify.handleSleep(() => {});
  },

  gloomdeckRecordSize: function(name) {
    const record = Module['host'].records[UTF8ToString(name)];
    return record ? record.length : -1;
  },

  gloomdeckReadRecord: function(name, to) {
    HEAPU8.set(Module['host'].records[UTF8ToString(name)], to);
  },

  gloomdeckWriteRecord: function(name, from, size) {
    Module['host'].records[UTF8ToString(name)] = HEAPU8.slice(from, from + size);
  },

  gloomdeckKeepRecords: function() {
    Module['host'].keep();
  },

  gloomdeckEnded: function() {
    Module['host'].end();
  },
});
