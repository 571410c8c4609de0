// What the page has to say, each in a line of its own over the page's lower edge, and its questions.
const at = id => document.getElementById(id);

function button(label, run) {
  const made = document.createElement('button');
  made.type = 'button';
  made.textContent = label;
  made.addEventListener('click', run);
  return made;
}

export function unsay(id) { at(id)?.remove(); }

/// Says it once; the answers are pairs of a label and what is done, after which the line goes away.
export function say(id, text, answers = [['Close', () => {}]]) {
  if (at(id)) return;
  const notice = document.createElement('div');
  notice.id = id;
  notice.className = 'notice';
  const line = document.createElement('p');
  line.textContent = text;
  const buttons = answers.map(([label, run]) => button(label, () => { unsay(id); run(); }));
  notice.append(line, ...buttons);
  at('notices').append(notice);
}

/// True where the player agrees.
export function ask(text, agree, decline) {
  const question = at('question');
  at('questionText').textContent = text;
  at('agree').textContent = agree;
  at('decline').textContent = decline;
  question.returnValue = '';
  question.showModal();
  return new Promise(resolve => {
    question.addEventListener('close', () => resolve(question.returnValue === 'yes'), { once: true });
  });
}

at('agree').addEventListener('click', () => at('question').close('yes'));
at('decline').addEventListener('click', () => at('question').close('no'));
