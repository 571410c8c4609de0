// The on-screen keyboard: what the field has taken for good goes to the game.
const mark = '\u00A0'; // stands in the field, so that a phone's Backspace has something to delete

const field = document.getElementById('typed');
let typeKey = null;

function reset() {
  field.value = mark;
  field.setSelectionRange(1, 1);
}

function pass(event) {
  if (event.isComposing) return;
  const text = field.value;
  if (!text.includes(mark)) typeKey('Backspace');
  for (const character of text.replace(mark, '')) typeKey(character);
  reset();
}

function passKey(event) {
  if (event.isComposing || !['Enter', 'Escape'].includes(event.key)) return;
  event.preventDefault();
  typeKey(event.key);
  field.blur();
}

/// Offers the field where there is no other keyboard for sure.
export function offerTyping(typeInGame) {
  typeKey = typeInGame;
  document.getElementById('typing').hidden = !matchMedia('(any-pointer: coarse)').matches;
  field.addEventListener('focus', reset);
  field.addEventListener('blur', () => { field.value = ''; });
  field.addEventListener('input', pass);
  field.addEventListener('compositionend', pass);
  field.addEventListener('keydown', passKey);
}
