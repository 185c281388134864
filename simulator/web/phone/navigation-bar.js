// The navigation bar: back or left button, title, right button.
import { h } from '/vendor/preact/preact.js';

import { attribute, children, classes, isEnabled, role, withRole } from '/model/elements.js';
import { BackChevron } from '/phone/glyphs.js';
import { Picture } from '/phone/picture.js';

const content = (button) => {
  if (role(button) === 'back')
    return [h(BackChevron), !attribute(button, 'iconOnly') && h('span', null, button.label)];
  if (attribute(button, 'image'))
    return h(Picture, { element: { ...button, label: '', attributes: { ...button.attributes, template: true },
      rect: { width: 22, height: 22 } } });
  return button.label;
};

const BarButton = ({ button, perform }) =>
  h('button', {
    type: 'button',
    class: classes('bar-button', `bar-${role(button)}`, attribute(button, 'style') === 'done' && 'bar-done'),
    disabled: !isEnabled(button),
    'aria-label': button.label || button.identifier || 'Tools',
    onClick: () => perform(role(button) === 'back' ? 'back' : 'tap', button),
  }, content(button));

export const NavigationBar = ({ bar, perform }) => {
  const side = (...roles) => children(bar).filter((child) => child.type === 'Button' && roles.includes(role(child)));
  const title = withRole(bar, 'title');
  const buttons = (list) => list.map((button) =>
    h(BarButton, { key: `${button.number}-${button.part ?? ''}`, button, perform }));
  return h('header', { class: 'bar', style: { height: bar.rect.y + bar.rect.height, width: bar.rect.width } },
    h('div', { class: 'bar-row', style: { height: bar.rect.height } },
      h('div', { class: 'bar-side bar-leading' }, buttons(side('back', 'left'))),
      h('h2', { class: 'bar-title' }, title?.label),
      h('div', { class: 'bar-side bar-trailing' }, buttons(side('right')))));
};
