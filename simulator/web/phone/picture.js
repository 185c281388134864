// An image of the bundle or the device; template images take the colour of their surroundings.
import { h } from '/vendor/preact/preact.js';

import { attribute } from '/model/elements.js';

const size = ({ rect }) => ({ width: rect.width, height: rect.height });

export const Picture = ({ element, style }) => {
  const address = attribute(element, 'image');
  const alt = element.label ?? '';
  if (!address)
    return h('span', { class: 'picture-missing', style: style ?? size(element) });
  if (!attribute(element, 'template'))
    return h('img', { class: 'picture', src: address, alt, style: style ?? size(element), draggable: false });
  const mask = `url("${address}") center / contain no-repeat`;
  return h('span', {
    class: 'picture template',
    role: alt ? 'img' : undefined,
    'aria-label': alt || undefined,
    style: { ...(style ?? size(element)), mask, webkitMask: mask },
  });
};
