// A button that a page placed itself.
import { h } from '/vendor/preact/preact.js';

import { attribute, isEnabled } from '/model/elements.js';
import { letters } from '/phone/label.js';
import { Picture } from '/phone/picture.js';

export const PushButton = ({ element, context, style }) =>
  h('button', {
    type: 'button',
    class: 'push-button',
    style: { ...letters(element), ...style },
    disabled: !isEnabled(element),
    'aria-label': element.label || element.identifier || 'Button',
    onClick: () => context.perform('tap', element),
  }, attribute(element, 'image') ? h(Picture, { element }) : element.label);
