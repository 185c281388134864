// What the page says while the simulator does not answer.
import { h } from '/vendor/preact/preact.js';

const text = ({ screen, refused }) => {
  if (refused)
    return 'A simulator that was started later answers here. Open the address that it has printed.';
  return screen
    ? 'The simulator has stopped. This page shows its last state. Start it again with ./zv run and open the address that it prints.'
    : 'Waiting for the simulator. Start it with ./zv run and open the address that it prints.';
};

export const Offline = ({ store }) =>
  h('div', { class: 'offline', role: 'status' }, !store.connected && h('p', null, text(store)));
