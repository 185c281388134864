// What the page says while the simulator does not answer.
import { h } from '/vendor/preact/preact.js';

const text = (started) => started
  ? 'The simulator has stopped. This page shows its last state and goes on as soon as it is started again on the same port.'
  : 'Waiting for the simulator. Start it with ./zv run and open the address that it prints.';

export const Offline = ({ connected, started }) =>
  h('div', { class: 'offline', role: 'status' }, !connected && h('p', null, text(started)));
