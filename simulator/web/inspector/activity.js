// Command lines, opened addresses, alerts, and what the platform has to say.
import { h } from '/vendor/preact/preact.js';

import { Card, Empty } from '/inspector/card.js';
import { exact } from '/inspector/time.js';

const words = { command: 'command', url: 'opened', alert: 'alert', sheet: 'sheet', log: 'note', file: 'written' };

// Of a written file the name is enough; the folder is always the same.
const textOf = ({ kind, text }) => (kind === 'file' ? text.slice(text.lastIndexOf('/') + 1) : text) || '(no title)';

const Status = ({ event }) => event.kind === 'command' &&
  h('span', { class: event.status === 0 ? 'status-good' : 'status-bad' }, `exit ${event.status}`);

const Line = ({ event }) =>
  h('li', { class: `activity-${event.kind}` },
    h('time', null, exact(event.time)),
    h('span', { class: 'activity-kind' }, words[event.kind]),
    h('span', { class: 'activity-text' },
      h('code', { title: event.text }, textOf(event)),
      event.detail && h('span', { class: 'activity-detail' }, ` ${event.detail}`)),
    h(Status, { event }));

export const Activity = ({ store }) => {
  const lines = store.events.filter(({ kind }) => kind in words).reverse();
  return h(Card, { title: 'Activity', note: 'commands, addresses, alerts, writes', name: 'activity' },
    lines.length === 0 && h(Empty, null, 'Nothing has happened yet.'),
    h('ol', { class: 'log', 'aria-label': 'Activity', tabIndex: lines.length ? 0 : undefined },
      lines.map((event) => h(Line, { key: event.number, event }))));
};
