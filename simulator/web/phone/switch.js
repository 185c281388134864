import { h } from '/vendor/preact/preact.js';

import { attribute, isEnabled } from '/model/elements.js';

const on = ({ value }) => value === '1';

export const Switch = ({ element, context, name, style }) =>
  h('button', {
    type: 'button',
    role: 'switch',
    class: 'switch',
    'aria-checked': String(on(element)),
    'aria-label': element.label || name,
    disabled: !isEnabled(element),
    style: { ...style, ...(on(element) && attribute(element, 'color') && { backgroundColor: attribute(element, 'color') }) },
    onClick: () => context.perform('tap', element),
  }, h('span', { class: 'switch-knob' }));
