// The activity indicator: twelve spokes.
import { h } from '/vendor/preact/preact.js';

const spokes = [...Array(12).keys()];
const spoke = (index) => h('line', {
  key: index, x1: 0, y1: -5.5, x2: 0, y2: -9, transform: `rotate(${index * 30})`, opacity: 0.25 + index * 0.06,
});

export const Spinner = ({ element, style }) =>
  h('svg', { class: 'spinner', viewBox: '-10 -10 20 20', role: 'img', 'aria-label': element.label ?? 'Busy', style },
    spokes.map(spoke));
