// A titled box of the inspector.
import { h } from '/vendor/preact/preact.js';

export const Card = ({ title, note, children, name }) =>
  h('section', { class: `card card-${name}`, 'aria-labelledby': `card-${name}` },
    h('h2', { id: `card-${name}` }, title, note && h('span', { class: 'card-note' }, note)),
    children);

export const Empty = ({ children }) => h('p', { class: 'empty' }, children);
