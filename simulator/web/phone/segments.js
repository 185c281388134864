// A segmented control: one choice of a few.
import { h } from '/vendor/preact/preact.js';

import { isEnabled, ofType } from '/model/elements.js';

export const Segments = ({ element, context, name, style }) =>
  h('div', { class: 'segments', role: 'group', 'aria-label': element.label || name, style },
    ofType(element, 'Button').map((segment) => h('button', {
      type: 'button',
      key: segment.part,
      class: 'segment',
      'aria-pressed': String(Boolean(segment.selected)),
      disabled: !isEnabled(element) || !isEnabled(segment),
      onClick: () => context.perform('tap', segment),
    }, segment.label)));
