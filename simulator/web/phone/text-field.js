// A one-line text field.
import { h } from '/vendor/preact/preact.js';

import { attribute, classes, isEnabled } from '/model/elements.js';
import { inputMode } from '/phone/keyboards.js';
import { letters } from '/phone/label.js';
import { LiveText } from '/phone/live-text.js';

const isSecure = (element) => element.type === 'SecureTextField' || attribute(element, 'secure');

export class TextField extends LiveText {
  render({ element, name, style }) {
    const placeholder = attribute(element, 'placeholder') ?? '';
    const focused = attribute(element, 'focused');
    return h('span', { class: classes('text-field', attribute(element, 'border') === 3 && 'rounded'), style },
      h('input', {
        type: isSecure(element) ? 'password' : 'text',
        ref: this.hold,
        style: letters(element),
        placeholder,
        'aria-label': element.label || name || placeholder || 'Text',
        'data-focused': focused ? '' : undefined,
        'data-field': element.number,
        inputMode: inputMode(attribute(element, 'keyboard')),
        autocomplete: 'off',
        spellcheck: false,
        disabled: !isEnabled(element),
        onInput: this.input,
        onCompositionend: this.composed,
        onFocus: this.focus,
        onKeydown: this.key,
      }),
      attribute(element, 'clear') && h('button', {
        type: 'button', class: 'clear-button', 'aria-label': 'Clear text', tabIndex: -1,
        onPointerdown: (event) => event.preventDefault(),
        onClick: () => this.act('clear'),
      }));
  }
}
