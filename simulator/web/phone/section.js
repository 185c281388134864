// A section of a table: header, rows, footer, each at its place.
import { h } from '/vendor/preact/preact.js';

import { findElement, role } from '/model/elements.js';
import { Cell } from '/phone/cell.js';
import { ElementView, place } from '/phone/element-view.js';
import { letters } from '/phone/label.js';

const textWith = (element, wanted) => findElement(element, (part) => role(part) === wanted);

const SectionText = ({ element, wanted, origin, id }) => {
  const text = textWith(element, wanted);
  const style = { ...place(text, origin), ...letters(text) };
  return h(wanted === 'header' ? 'h3' : 'p', { id, class: `section-${wanted}`, style }, text.label);
};

export const Section = ({ section, context, title, origin, remembered }) => {
  const { header, rows, footer, other, number } = section;
  if (other)
    return h(ElementView, { element: other, context, origin });
  const id = `section-${number ?? 'x'}-header`;
  return h('div', { class: 'section', role: 'group', 'aria-label': header ? undefined : title,
    'aria-labelledby': header && id },
    header && h(SectionText, { element: header, wanted: 'header', origin, id }),
    rows.length > 0 && h('div', { role: 'list', class: 'rows' }, rows.map((cell, index) =>
      h(Cell, { key: cell.number, cell, context, origin, last: !remembered && index === rows.length - 1 }))),
    footer && h(SectionText, { element: footer, wanted: 'footer', origin }));
};
