// The layouts of the drawn keyboard, by UIKeyboardType and language.
const rows = (...lines) => lines.map((line) => line.split(' '));

// Languages whose writing is composed out of several keys have the English keyboard, as one of those that their
// phones have.
const english = {
  letters: rows('q w e r t y u i o p', 'a s d f g h j k l', 'shift z x c v b n m delete'),
  space: 'space', return: 'return', ABC: 'ABC',
};
const languages = {
  de: { ...english, letters: rows('q w e r t z u i o p ü', 'a s d f g h j k l ö ä', 'shift y x c v b n m delete'),
    space: 'Leerzeichen', return: 'Return' },
  es: { ...english, letters: rows('q w e r t y u i o p', 'a s d f g h j k l ñ', 'shift z x c v b n m delete'),
    space: 'espacio', return: 'intro' },
  fr: { ...english, letters: rows('a z e r t y u i o p', 'q s d f g h j k l m', "shift w x c v b n ' delete"),
    space: 'espace', return: 'retour' },
  ru: { letters: rows('й ц у к е н г ш щ з х', 'ф ы в а п р о л д ж э', 'shift я ч с м и т ь б ю delete'),
    space: 'Пробел', return: 'Ввод', ABC: 'АБВ' },
};

const of = (language) => languages[language?.slice(0, 2)] ?? english;

// What stands on a key that does not stand for itself.
export const wordOn = (key, language) => of(language)[key] ?? key;

const symbolRows = rows('1 2 3 4 5 6 7 8 9 0', '- / : ; ( ) $ & @ "', ". , ? ! ' + = delete");
const digits = rows('1 2 3', '4 5 6', '7 8 9');

const pad = (...last) => ({ pad: true, first: [...digits, last] });
const letters = (...others) => (own) => ({
  first: [...own, ['123', ...others, 'return']], second: [...symbolRows, ['ABC', ...others, 'return']],
});
const plain = letters('space');

const layouts = {
  // Numbers and punctuation is the ordinary keyboard turned to its second side.
  2: (own) => ({ first: plain(own).second, second: plain(own).first }),
  // An address is written in Latin letters.
  3: () => letters('.', '/', '.com')(english.letters),
  4: () => pad('', '0', 'delete'),
  5: () => ({ ...pad('+*#', '0', 'delete'), second: [...rows('1 2 3', '4 5 6', '* + #'), ['123', ',', 'delete']] }),
  7: () => letters('space', '@', '.')(english.letters),
  8: () => pad('.', '0', 'delete'),
};

export const layoutOf = (keyboard, language) => (layouts[keyboard] ?? plain)(of(language).letters);

const inputModes = { 2: 'text', 3: 'url', 4: 'numeric', 5: 'tel', 7: 'email', 8: 'decimal' };

export const inputMode = (keyboard) => inputModes[keyboard] ?? 'text';

// Letters under the digits of a number or phone pad.
export const padLetters = {
  2: 'ABC', 3: 'DEF', 4: 'GHI', 5: 'JKL', 6: 'MNO', 7: 'PQRS', 8: 'TUV', 9: 'WXYZ',
};
