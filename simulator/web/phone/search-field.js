// The search field above a list, in its gray bar.
import { h } from '/vendor/preact/preact.js';

import { attribute, isEnabled } from '/model/elements.js';
import { Magnifier } from '/phone/glyphs.js';
import { LiveText } from '/phone/live-text.js';

export class SearchField extends LiveText {
  render({ element, name, style }) {
    const placeholder = attribute(element, 'placeholder') ?? '';
    return h('div', { class: 'search-field', style },
      h('input', {
        type: 'search',
        ref: this.hold,
        placeholder,
        'aria-label': element.label || name || placeholder || 'Search',
        'data-focused': attribute(element, 'focused') ? '' : undefined,
        'data-field': element.number,
        autocomplete: 'off',
        spellcheck: false,
        disabled: !isEnabled(element),
        onInput: this.input,
        onCompositionend: this.composed,
        onFocus: this.focus,
        onKeydown: this.key,
      }),
      // Stands in the middle until the field is used, as the phone has it.
      h('span', { class: 'search-sign', 'aria-hidden': 'true' }, h(Magnifier), h('span', null, placeholder)),
      element.value && h('button', {
        type: 'button', class: 'clear-button', 'aria-label': 'Clear text', tabIndex: -1,
        onPointerdown: (event) => event.preventDefault(),
        onClick: () => this.act('clear'),
      }));
  }
}
