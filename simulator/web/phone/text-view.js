// A text of several lines that can be edited.
import { h } from '/vendor/preact/preact.js';

import { attribute, isEnabled } from '/model/elements.js';
import { letters } from '/phone/label.js';
import { LiveText } from '/phone/live-text.js';

export class TextView extends LiveText {
  pressed() {} // Return is a line break here

  render({ element, name, style }) {
    return h('textarea', {
      class: 'text-view',
      ref: this.hold,
      style: { ...letters(element), ...style },
      'aria-label': element.label || name || 'Text',
      'data-focused': attribute(element, 'focused') ? '' : undefined,
      'data-field': element.number,
      disabled: !isEnabled(element),
      onInput: this.input,
      onCompositionend: this.composed,
      onFocus: this.focus,
    });
  }
}
