// The rows, headers and footers that a table has shown lately, each with the place of the content's beginning at that
// time. Fast scrolling shows them where the phone's own rows have not arrived yet.
import { attribute } from '/model/elements.js';

const screens = 2; // as far around what the phone shows

const signature = (table) =>
  JSON.stringify(['page', 'contentHeight', 'editing', 'style'].map((name) => attribute(table, name)));

const isSettled = (element) => element.type === 'Cell' ? !attribute(element, 'open') : element.type === 'StaticText';

export class RowMemory {
  constructor() {
    this.parts = new Map(); // by their place in the content
    this.shown = new Set();
  }

  // Takes in what the phone shows now. A table that has another length or is being edited begins anew.
  take(table, elements, origin) {
    const now = signature(table);
    if (now !== this.signature)
      this.parts.clear();
    this.signature = now;
    const begin = table.rect.y - origin.y;
    const end = begin + table.rect.height;
    this.forget(begin, end, table.rect.height * screens);
    this.shown.clear();
    for (const element of elements.filter(isSettled))
      this.keep(element, origin);
  }

  keep(element, origin) {
    const place = element.rect.y - origin.y;
    const key = `${element.type} ${place}`;
    this.parts.set(key, { key, element, origin, begin: place, end: place + element.rect.height });
    this.shown.add(key);
  }

  // What the phone shows there now is newer; what is far away is not needed.
  forget(begin, end, far) {
    for (const [key, part] of this.parts) {
      if ((part.end > begin && part.begin < end) || part.end < begin - far || part.begin > end + far)
        this.parts.delete(key);
    }
  }

  others() {
    return [...this.parts.values()].filter(({ key }) => !this.shown.has(key));
  }
}
