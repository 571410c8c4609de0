// Says why where the page cannot start. It is as old as it can be, for browsers that know nothing of the rest.
(function() {
  'use strict';
  var needs = 'It takes Chrome 103, Firefox 113, Safari 16.4, or a later one.';
  var said = false; // the first reason is the one that counts

  function say(text) {
    var place = document.getElementById('loading');
    if (said || place.hidden) return;
    said = true;
    place.textContent = text;
    place.className = 'over notice';
  }

  function isTooOld() {
    try {
      return !('noModule' in document.createElement('script')) || !new CompressionStream('deflate-raw');
    } catch (error) {
      return true;
    }
  }

  // Of loading alone: the page itself tells of all that comes later.
  function noteFault(event) {
    var what = event.target && event.target.tagName;
    if (what === 'SCRIPT' || what === 'LINK')
      say('A file of the game could not be loaded. Load the page again; where that does not help, it is missing here.');
    else if (event.filename)
      say('The game cannot start in this browser. ' + needs);
  }

  if (location.protocol === 'file:')
    say('A browser plays the game only from a server. Run ./web, or put the folder on any web server.');
  else if (isTooOld())
    say('This browser is too old for the game. ' + needs);
  window.addEventListener('error', noteFault, true);
})();
