// The drawn keyboard. The physical one types too; this one is for the pointer and for the eye, and screen
// readers need not read it.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, classes } from '/model/elements.js';
import { Backspace, Shift } from '/phone/glyphs.js';
import { layoutOf, padLetters, wordOn } from '/phone/keyboards.js';

const turning = ['123', 'ABC', '+*#'];
const faces = { delete: h(Backspace), shift: h(Shift) };
const isLetter = (key) => /^\p{Ll}$/u.test(key);

const fieldOf = (keyboard) => document.querySelector(`[data-field="${attribute(keyboard, 'field')}"]`);

// Edits the focused field as the physical keyboard would.
const insert = (field, text) => {
  field.setRangeText(text, field.selectionStart, field.selectionEnd, 'end');
  field.dispatchEvent(new InputEvent('input', { bubbles: true }));
};

const erase = (field) => {
  if (field.selectionStart === field.selectionEnd && field.selectionStart > 0)
    field.setSelectionRange(field.selectionStart - 1, field.selectionEnd);
  insert(field, '');
};

export class Keyboard extends Component {
  componentWillReceiveProps({ keyboard }) {
    if (!keyboard || attribute(keyboard, 'field') !== (this.props.keyboard && attribute(this.props.keyboard, 'field')))
      this.setState({ turned: false, shifted: false });
  }

  press(key) {
    const field = fieldOf(this.props.keyboard);
    if (turning.includes(key))
      return this.setState(({ turned }) => ({ turned: !turned }));
    if (key === 'shift')
      return this.setState(({ shifted }) => ({ shifted: !shifted }));
    if (key === 'return')
      return this.props.perform('returnKey');
    if (!field || key === '')
      return undefined;
    if (key === 'delete')
      return erase(field);
    insert(field, key === 'space' ? ' ' : this.face(key));
    return this.setState({ shifted: false });
  }

  face(key) {
    return this.state.shifted && isLetter(key) ? key.toUpperCase() : key;
  }

  key(key, index, isPad) {
    const letters = isPad && padLetters[key];
    return h('button', {
      type: 'button', key: index, tabIndex: -1,
      class: classes('key', key === '' && 'key-empty', key.length > 1 && `key-wide key-${key.replace(/\W/g, '')}`),
      onPointerdown: (event) => event.preventDefault(), // the field keeps the focus
      onClick: () => this.press(key),
    }, faces[key] ?? wordOn(this.face(key), this.props.language), letters && h('small', null, letters));
  }

  render({ keyboard, language }, { turned }) {
    const layout = keyboard && layoutOf(attribute(keyboard, 'keyboard'), language);
    const lines = layout && ((turned && layout.second) || layout.first);
    return h('div', { class: classes('keyboard', keyboard && 'shown', layout?.pad && 'pad'), 'aria-hidden': 'true' },
      lines && lines.map((line, row) => h('div', { key: row, class: `key-row key-row-${row}` },
        line.map((key, index) => this.key(key, index, layout.pad)))));
  }
}
