// The browser's side of host_web.cpp: the canvas, pointer and keys, waiting, and the saved files in the
// browser's local storage. The page passes in `canvas`, maybe `files` to start from, and the calls `onEnded`
// and `onStorage`; it gets back `game`: leave, files, typeKey and halt.
mergeInto(LibraryManager.library, {
  $gloomdeck__deps: ['$FS'],
  $gloomdeck__postset: 'Module["game"] = gloomdeck;',
  $gloomdeck: {
    folder: '/gloomdeck/Data',
    fileNames: ['DGDP.dat', 'DGDG.dat'],
    holdTime: 500, // milliseconds after which a touch reads instead of clicking
    keyCodes: {
      Enter: 13, Escape: 27, Backspace: 8, ArrowUp: 0x148, ArrowDown: 0x150, ArrowLeft: 0x14B, ArrowRight: 0x14D,
    },
    kinds: { moved: 0, left: 1, button: 2, key: 3, repaint: 4 },

    events: [],
    wakeUp: null, // ends the wait that goes on
    timer: 0,
    holding: 0, // the timer of a touch that may become a long one
    listening: null,
    canvas: null,
    context: null,
    kept: null, // what local storage was given or had last

    // What has come in.

    push: function(kind, first, second) {
      var events = gloomdeck.events;
      var last = events[events.length - 1];
      if (kind === gloomdeck.kinds.moved && last && last[0] === kind) events.pop();
      events.push([kind, first | 0, second | 0]);
    },

    wakeForInput: function() {
      if (gloomdeck.wakeUp && gloomdeck.events.length) gloomdeck.wakeUp();
    },

    wait: function(milliseconds, forInput, resume) {
      var go = function() {
        clearTimeout(gloomdeck.timer);
        gloomdeck.wakeUp = null;
        resume();
      };
      gloomdeck.timer = setTimeout(go, milliseconds);
      if (forInput) gloomdeck.wakeUp = go;
    },

    // The pointer: a mouse or pen as it is; a finger clicks, and reads when it stays down for long.

    notePlace: function(event) {
      var area = gloomdeck.canvas.getBoundingClientRect();
      var x = Math.floor((event.clientX - area.left) * gloomdeck.canvas.width / area.width);
      var y = Math.floor((event.clientY - area.top) * gloomdeck.canvas.height / area.height);
      var inside = x >= 0 && y >= 0 && x < gloomdeck.canvas.width && y < gloomdeck.canvas.height;
      if (inside) gloomdeck.push(gloomdeck.kinds.moved, x, y);
      else gloomdeck.push(gloomdeck.kinds.left);
    },

    // The press is let go outside of everything, so that it clicks nothing.
    abandonPress: function() {
      clearTimeout(gloomdeck.holding);
      gloomdeck.push(gloomdeck.kinds.left);
      gloomdeck.push(gloomdeck.kinds.button, 0);
    },

    startHold: function(event) {
      clearTimeout(gloomdeck.holding);
      if (event.pointerType !== 'touch') return;
      gloomdeck.holding = setTimeout(function() {
        gloomdeck.abandonPress();
        gloomdeck.notePlace(gloomdeck.lastTouch);
        gloomdeck.wakeForInput();
      }, gloomdeck.holdTime);
    },

    // A second button that goes down or up shows in a motion; so does a release that the page never saw.
    notePointer: function(event) {
      if (!event.isPrimary) return;
      gloomdeck.lastTouch = event;
      gloomdeck.notePlace(event);
      if (event.type === 'pointerdown') {
        gloomdeck.canvas.setPointerCapture(event.pointerId);
        gloomdeck.startHold(event);
      }
      if (event.type === 'pointerup') clearTimeout(gloomdeck.holding);
      if (event.type !== 'pointermove' || event.pointerType !== 'touch')
        gloomdeck.push(gloomdeck.kinds.button, event.buttons & 1);
      gloomdeck.wakeForInput();
    },

    // A finger that was lifted leaves the pointer where it tapped, so that what is there can be read.
    noteLeave: function(event) {
      if (!event.isPrimary || event.pointerType === 'touch') return;
      gloomdeck.push(gloomdeck.kinds.left);
      gloomdeck.wakeForInput();
    },

    noteCancel: function(event) {
      if (!event.isPrimary) return;
      gloomdeck.abandonPress();
      gloomdeck.wakeForInput();
    },

    // Keys.

    isTyping: function(target) {
      return /^(INPUT|TEXTAREA|SELECT)$/.test(target.tagName);
    },

    // Enter and Space press what the page's own keyboard focus is on.
    belongsToThePage: function(event) {
      if (event.isComposing || event.keyCode === 229 || event.metaKey) return true;
      var types = event.getModifierState('AltGraph') && event.key.length === 1;
      if ((event.ctrlKey || event.altKey) && !types) return true;
      if (gloomdeck.isTyping(event.target)) return true;
      return /^(Enter| )$/.test(event.key) && /^(A|BUTTON|SUMMARY)$/.test(event.target.tagName);
    },

    // 0 for a key that the game does not know.
    codeOf: function(key) {
      if (key.length === 1 && key >= ' ' && key <= '~') return key.charCodeAt(0);
      return gloomdeck.keyCodes[key] || 0;
    },

    typeKey: function(key, repeat) {
      var code = gloomdeck.codeOf(key);
      if (code) gloomdeck.push(gloomdeck.kinds.key, code, repeat);
      gloomdeck.wakeForInput();
      return code !== 0;
    },

    noteKey: function(event) {
      if (gloomdeck.belongsToThePage(event)) return;
      if (gloomdeck.typeKey(event.key, event.repeat)) event.preventDefault();
    },

    // The saved files: both in one item, so that two pages never mix theirs.

    storageKey: function() {
      return 'gloomdeck:' + location.pathname.replace(/index\.html$/, '');
    },

    encode: function(bytes) {
      return btoa(String.fromCharCode.apply(null, bytes));
    },

    decode: function(text) {
      return Uint8Array.from(atob(text), function(character) { return character.charCodeAt(0); });
    },

    asText: function(files) {
      var item = {};
      gloomdeck.fileNames.forEach(function(name) { item[name] = gloomdeck.encode(files[name]); });
      return JSON.stringify(item);
    },

    // None where the item is not one of ours.
    asFiles: function(text) {
      try {
        var item = JSON.parse(text);
        var files = {};
        gloomdeck.fileNames.forEach(function(name) { files[name] = gloomdeck.decode(item[name]); });
        return files;
      } catch (error) {
        return null;
      }
    },

    report: function(works) {
      if (Module['onStorage']) Module['onStorage'](works);
    },

    // A store that takes nothing often reads without complaint.
    readStorage: function() {
      try {
        var key = gloomdeck.storageKey();
        var text = localStorage.getItem(key);
        localStorage.setItem(key + '?', '');
        localStorage.removeItem(key + '?');
        gloomdeck.report(true);
        return text;
      } catch (error) {
        gloomdeck.report(false);
        return null;
      }
    },

    // Both files as they are now; none before the game has saved.
    files: function() {
      var files = {};
      var whole = gloomdeck.fileNames.every(function(name) {
        var path = gloomdeck.folder + '/' + name;
        if (!FS.analyzePath(path).exists) return false;
        files[name] = FS.readFile(path);
        return true;
      });
      return whole ? files : null;
    },

    // A page where nothing was played since must not undo what another one kept.
    keepFiles: function() {
      var files = gloomdeck.files();
      var text = files && gloomdeck.asText(files);
      if (!text || text === gloomdeck.kept) return;
      try {
        localStorage.setItem(gloomdeck.storageKey(), text);
        gloomdeck.kept = text;
        gloomdeck.report(true);
      } catch (error) {
        gloomdeck.report(false);
      }
    },

    restoreFiles: function() {
      var text = gloomdeck.readStorage();
      var files = Module['files'] || (text && gloomdeck.asFiles(text));
      gloomdeck.kept = text;
      FS.mkdirTree(gloomdeck.folder);
      if (!files) return;
      gloomdeck.fileNames.forEach(function(name) { FS.writeFile(gloomdeck.folder + '/' + name, files[name]); });
      gloomdeck.keepFiles();
    },

    leave: function() {
      Module['_gloomdeckLeave']();
    },

    // Life.

    listen: function(target, type, handler) {
      target.addEventListener(type, handler, { signal: gloomdeck.listening.signal });
    },

    listenToPointer: function() {
      var canvas = gloomdeck.canvas;
      ['pointerdown', 'pointermove', 'pointerup'].forEach(function(type) {
        gloomdeck.listen(canvas, type, gloomdeck.notePointer);
      });
      gloomdeck.listen(canvas, 'pointerleave', gloomdeck.noteLeave);
      gloomdeck.listen(canvas, 'pointercancel', gloomdeck.noteCancel);
      gloomdeck.listen(canvas, 'contextmenu', function(event) { event.preventDefault(); });
    },

    listenToPage: function() {
      gloomdeck.listen(window, 'keydown', gloomdeck.noteKey);
      gloomdeck.listen(window, 'pagehide', gloomdeck.leave);
      gloomdeck.listen(document, 'visibilitychange', function() {
        if (document.visibilityState === 'hidden') gloomdeck.leave();
      });
      gloomdeck.listen(gloomdeck.canvas, 'contextrestored', function() {
        gloomdeck.push(gloomdeck.kinds.repaint);
        gloomdeck.wakeForInput();
      });
    },

    // The game stands still for ever, and another may take the canvas.
    halt: function() {
      gloomdeck.listening.abort();
      clearTimeout(gloomdeck.timer);
      clearTimeout(gloomdeck.holding);
      gloomdeck.wakeUp = null;
    },
  },

  gloomdeckOpen__deps: ['$gloomdeck'],
  gloomdeckOpen: function(width, height) {
    gloomdeck.canvas = Module['canvas'];
    gloomdeck.canvas.width = width;
    gloomdeck.canvas.height = height;
    gloomdeck.context = gloomdeck.canvas.getContext('2d', { alpha: false });
    gloomdeck.listening = new AbortController();
    gloomdeck.restoreFiles();
    gloomdeck.listenToPointer();
    gloomdeck.listenToPage();
  },

  gloomdeckTitle: function(title) {
    document.title = UTF8ToString(title);
  },

  gloomdeckWarn: function(line) {
    console.error(UTF8ToString(line));
  },

  gloomdeckPaint__deps: ['$gloomdeck'],
  gloomdeckPaint: function(pixels, width, firstRow, rows) {
    var bytes = new Uint8ClampedArray(HEAPU8.buffer, pixels, 4 * width * rows);
    gloomdeck.context.putImageData(new ImageData(bytes, width, rows), 0, firstRow);
  },

  gloomdeckTakeEvent__deps: ['$gloomdeck'],
  gloomdeckTakeEvent: function(event) {
    var next = gloomdeck.events.shift();
    if (!next) return 0;
    HEAP32.set(next, event >> 2);
    return 1;
  },

  // A page's own clock starts at nearly the same moment every time.
  gloomdeckSeconds: function() {
    return (performance.timeOrigin + performance.now()) / 1000;
  },

  gloomdeckSleep__deps: ['$gloomdeck', '$Asyncify'],
  gloomdeckSleep: function(milliseconds) {
    return Asyncify.handleSleep(function(resume) { gloomdeck.wait(milliseconds, false, resume); });
  },

  gloomdeckAwaitInput__deps: ['$gloomdeck', '$Asyncify'],
  gloomdeckAwaitInput: function(milliseconds) {
    return Asyncify.handleSleep(function(resume) {
      if (gloomdeck.events.length) resume();
      else gloomdeck.wait(milliseconds, true, resume);
    });
  },

  // One turn for the browser; unlike a timer, a message waits for nothing.
  gloomdeckBreathe__deps: ['$gloomdeck', '$Asyncify'],
  gloomdeckBreathe: function() {
    return Asyncify.handleSleep(function(resume) {
      var channel = new MessageChannel();
      channel.port1.onmessage = function() {
        channel.port1.close();
        if (!gloomdeck.listening || !gloomdeck.listening.signal.aborted) resume();
      };
      channel.port2.postMessage(0);
    });
  },

  gloomdeckRest__deps: ['$Asyncify'],
  gloomdeckRest: function() {
    return Asyncify.handleSleep(function() {});
  },

  gloomdeckKeepFiles__deps: ['$gloomdeck'],
  gloomdeckKeepFiles: function() {
    gloomdeck.keepFiles();
  },

  gloomdeckEnded__deps: ['$gloomdeck'],
  gloomdeckEnded: function() {
    gloomdeck.halt();
    if (Module['onEnded']) Module['onEnded']();
  },
});
