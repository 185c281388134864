// Drawings that belong to the system.
import { h } from '/vendor/preact/preact.js';

const drawing = (name, viewBox, path) => () =>
  h('svg', { class: name, viewBox, 'aria-hidden': 'true' }, h('path', { d: path }));

export const BackChevron = drawing('back-chevron', '0 0 13 21', 'M11.5 1.5 2.5 10.5 11.5 19.5');
export const Chevron = drawing('chevron', '0 0 8 13', 'M1 1 6.5 6.5 1 12');
export const Check = drawing('check', '0 0 14 11', 'M1 6 4.8 9.8 13 1');
export const Backspace = drawing('backspace', '0 0 23 17', 'M7 1h15v15H7L1 8.5z M10.5 5l7 7m0-7l-7 7');
export const Shift = drawing('shift', '0 0 19 16', 'M9.5 1 1 9h4v6h9V9h4z');
export const Magnifier = drawing('magnifier', '0 0 14 14', 'M9.3 9.3 13 13M10.5 5.8a4.7 4.7 0 1 1-9.4 0 4.7 4.7 0 0 1 9.4 0z');
