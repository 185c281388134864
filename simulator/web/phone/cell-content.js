// What stands in a row, from left to right.
import { h } from '/vendor/preact/preact.js';

import { attribute, children, classes, role } from '/model/elements.js';
import { ElementView } from '/phone/element-view.js';
import { Check, Chevron } from '/phone/glyphs.js';
import { letters } from '/phone/label.js';

const controls = ['Switch', 'Slider', 'SegmentedControl', 'TextField', 'SecureTextField', 'TextView', 'SearchField'];
const wide = ['Slider', 'SegmentedControl', 'TextField', 'SecureTextField', 'TextView', 'SearchField'];
const isWide = ({ type }) => wide.includes(type);
const editing = ['minus', 'delete'];

export const isControl = (element) => controls.includes(element.type) ||
  (element.type === 'Button' && !editing.includes(role(element)));

const text = (cell, wanted) => {
  const element = children(cell).find((child) => child.type === 'StaticText' && role(child) === wanted);
  return element && h('span', { class: `cell-${wanted}`, style: letters(element) }, element.label);
};

const Texts = ({ cell }) => {
  const parts = [text(cell, 'text'), text(cell, 'detail')].filter(Boolean);
  return parts.length > 0 && h('span', { class: 'cell-texts' }, parts);
};

const isTextPart = (element) => element.type === 'StaticText' && ['text', 'detail'].includes(role(element));
const isEditing = (element) => element.type === 'Button' && editing.includes(role(element));
const isIcon = ({ type }) => type === 'Image';

const Accessory = ({ cell }) => {
  const accessory = attribute(cell, 'accessory');
  if (accessory === 'checkmark')
    return h('span', { class: 'cell-sign' }, h(Check), h('span', { class: 'visually-hidden' }, 'selected'));
  return accessory?.includes('disclosure') && h('span', { class: 'cell-sign' }, h(Chevron));
};

export const CellContent = ({ cell, context, name }) => {
  const others = children(cell).filter((child) => !isTextPart(child) && !isEditing(child) && !isIcon(child))
    .sort((a, b) => a.rect.x - b.rect.x);
  return h('span', { class: classes('cell-content', others.some(isWide) && 'with-wide') },
    children(cell).filter(isIcon).map((icon, index) =>
      h('span', { key: index, class: 'cell-icon' }, h(ElementView, { element: icon, context, flows: true }))),
    h(Texts, { cell }),
    others.map((element, index) => h('span', {
      key: element.number ?? index,
      class: classes('cell-part', isWide(element) && 'wide', role(element) === 'accessory' && 'accessory'),
    }, h(ElementView, { element, context, name, flows: true }))),
    h(Accessory, { cell }));
};
