// Text that is only read.
import { h } from '/vendor/preact/preact.js';

import { attribute } from '/model/elements.js';

// What an element's attributes say about its letters. Nothing is '' and not undefined: only that clears the style
// of a node that is used again.
export const letters = (element) => ({
  fontSize: attribute(element, 'size') ?? '',
  fontWeight: attribute(element, 'weight') === 'bold' ? 'var(--weight-medium)' : '',
  color: attribute(element, 'color') ?? '',
  textAlign: attribute(element, 'align') ?? '',
});

export const Label = ({ element, style }) =>
  h('span', { class: 'label', style: { ...letters(element), ...style } }, element.label);
