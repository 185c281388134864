// The layouts of the drawn keyboard, by UIKeyboardType.
const rows = (...lines) => lines.map((line) => line.split(' '));

const letterRows = rows('q w e r t y u i o p', 'a s d f g h j k l', 'shift z x c v b n m delete');
const symbolRows = rows('1 2 3 4 5 6 7 8 9 0', '- / : ; ( ) $ & @ "', ". , ? ! ' + = delete");
const digits = rows('1 2 3', '4 5 6', '7 8 9');

const letters = (...last) => [...letterRows, last];
const symbols = (...last) => [...symbolRows, last];
const pad = (...last) => [...digits, last];

const layouts = {
  0: { first: letters('123', 'space', 'return'), second: symbols('ABC', 'space', 'return') },
  3: { first: letters('123', '.', '/', '.com', 'return'), second: symbols('ABC', '.', '/', '.com', 'return') },
  4: { pad: true, first: pad('', '0', 'delete') },
  5: { pad: true, first: pad('+*#', '0', 'delete'), second: [['1', '2', '3'], ['4', '5', '6'], ['*', '+', '#'],
    ['123', ',', 'delete']] },
  7: { first: letters('123', 'space', '@', '.', 'return'), second: symbols('ABC', 'space', '@', '.', 'return') },
  8: { pad: true, first: pad('.', '0', 'delete') },
};

// Numbers and punctuation is the ordinary keyboard turned to its second side.
const turned = { 2: { first: layouts[0].second, second: layouts[0].first } };

export const layoutOf = (keyboard) => layouts[keyboard] ?? turned[keyboard] ?? layouts[0];

const inputModes = { 2: 'text', 3: 'url', 4: 'numeric', 5: 'tel', 7: 'email', 8: 'decimal' };

export const inputMode = (keyboard) => inputModes[keyboard] ?? 'text';

// Letters under the digits of a number or phone pad.
export const padLetters = {
  2: 'ABC', 3: 'DEF', 4: 'GHI', 5: 'JKL', 6: 'MNO', 7: 'PQRS', 8: 'TUV', 9: 'WXYZ',
};
