// Headers, rows and footers of a table in their order, put together by section.
import { attribute, contains, role } from '/model/elements.js';

const isText = (element) => contains(element, () => true) || element.type === 'StaticText';

const sectionText = (element, wanted) =>
  element.type === 'StaticText' ? role(element) === wanted : contains(element, (child) => role(child) === wanted);

export const sectionsOf = (elements) => {
  const sections = [];
  const begin = (part) => sections[sections.push({ rows: [], ...part }) - 1];
  let current = null;
  for (const element of elements) {
    if (element.type === 'Cell') {
      const number = attribute(element, 'section');
      if (!current || current.footer || (current.number ?? number) !== number)
        current = begin({});
      current.number = number;
      current.rows.push(element);
    } else if (sectionText(element, 'header')) {
      current = begin({ header: element });
    } else if (sectionText(element, 'footer') && isText(element)) {
      if (!current || current.footer)
        current = begin({});
      current.footer = element;
    } else {
      begin({ other: element });
      current = null;
    }
  }
  return sections;
};
