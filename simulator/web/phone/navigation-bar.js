// The navigation bar: back or left buttons, title, right buttons, each where the phone puts it.
import { h } from '/vendor/preact/preact.js';

import { attribute, children, classes, isEnabled, role } from '/model/elements.js';
import { ElementView, place } from '/phone/element-view.js';
import { BackChevron } from '/phone/glyphs.js';
import { Picture } from '/phone/picture.js';

// Room beside each text: a button is easier to hit, and the browser's letters may be a little wider than the phone's.
const beside = { title: 4, button: 8 };

const content = (button) => {
  if (role(button) === 'back')
    return [h(BackChevron), !attribute(button, 'iconOnly') && h('span', null, button.label)];
  if (attribute(button, 'image'))
    return h(Picture, { element: { ...button, label: '', attributes: { ...button.attributes, template: true },
      rect: { width: 22, height: 22 } } });
  return button.label;
};

const widened = ({ rect }, bar, more) => ({ left: rect.x - bar.rect.x - more, width: rect.width + 2 * more });

const BarButton = ({ button, bar, perform }) =>
  h('button', {
    type: 'button',
    class: classes('bar-button', `bar-${role(button)}`, attribute(button, 'style') === 'done' && 'bar-done'),
    style: widened(button, bar, role(button) === 'back' ? 0 : beside.button),
    disabled: !isEnabled(button),
    'aria-label': button.label || button.identifier || 'Tools',
    onClick: () => perform(role(button) === 'back' ? 'back' : 'tap', button),
  }, content(button));

const isBarButton = (element) => element.type === 'Button' && ['back', 'left', 'right'].includes(role(element));

export const NavigationBar = ({ bar, context }) => {
  const part = (element, index) => {
    if (isBarButton(element))
      return h(BarButton, { key: `${element.number}-${element.part ?? ''}`, button: element, bar,
        perform: context.perform });
    if (role(element) === 'title')
      return h('h2', { key: 'title', class: 'bar-title', style: widened(element, bar, beside.title) }, element.label);
    return h('div', { key: element.number ?? index, class: 'bar-view', style: place(element, bar.rect) },
      h(ElementView, { element, context, flows: true }));
  };
  return h('header', { class: 'bar', style: { height: bar.rect.y + bar.rect.height, width: bar.rect.width } },
    h('div', { class: 'bar-row', style: { height: bar.rect.height } }, children(bar).map(part)));
};
