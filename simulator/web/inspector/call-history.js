// The call-history database: the limit as it is stored and as the system reads it, trigger, calls, kept calls.
import { h, Component } from '/vendor/preact/preact.js';

import { Card, Empty } from '/inspector/card.js';
import { dayAndTime } from '/inspector/time.js';

const duration = (seconds) => {
  const units = [['d', 86400], ['h', 3600], ['min', 60], ['s', 1]];
  const parts = units.map(([unit, length], index) =>
    [Math.floor((index ? seconds % units[index - 1][1] : seconds) / length), unit]).filter(([count]) => count > 0);
  return parts.map(([count, unit]) => `${count} ${unit}`).join(' ') || '0 s';
};

const Fact = ({ name, children }) => h('div', null, h('dt', null, name), h('dd', null, children));

const Calls = ({ calls, label, forget }) => calls.length > 0 &&
  h('ol', { class: 'calls', 'aria-label': label, tabIndex: 0 }, calls.map((call) => h('li', { key: call.row },
    h('span', null, String(call.number ?? 'no number')),
    h('time', null, call.time === null ? '' : dayAndTime(call.time)),
    forget && h('button', {
      type: 'button', class: 'quiet', onClick: () => forget(call),
      'aria-label': `Let the system delete the call of ${call.number}`,
    }, 'Delete'))));

export class CallHistory extends Component {
  render({ store, store: { database } }, { shown = 'recent' }) {
    if (!database || database.problem || !database.exists)
      return h(Card, { title: 'Call history', name: 'database' },
        h(Empty, null, database?.problem ?? 'This phone has no call-history database.'));
    const { limit, trigger, calls, kept, lifetime, form } = database;
    const tab = (name, text) => h('button', {
      type: 'button', class: 'tab', 'aria-pressed': String(shown === name), onClick: () => this.setState({ shown: name }),
    }, text);
    return h(Card, { title: 'Call history', note: form === 'coreData' ? 'CallHistory.storedata' : 'call_history.db',
      name: 'database' },
    h('dl', { class: 'facts' },
      h(Fact, { name: 'Limit stored' }, limit.stored ?? 'none'),
      h(Fact, { name: 'Limit in force' }, limit.inForce),
      h(Fact, { name: 'Keeping trigger' }, trigger ? h('span', { class: 'status-good' }, 'installed') : 'none'),
      h(Fact, { name: 'Lifetime' }, duration(lifetime))),
    h('div', { class: 'tabs', role: 'group', 'aria-label': 'Calls to list' },
      tab('recent', `${calls} calls`), tab('keptRecords', `${kept} kept after deletion`)),
    h(Calls, {
      calls: database[shown],
      label: shown === 'recent' ? 'Recent calls' : 'Kept calls',
      forget: shown === 'recent' && (({ row }) => store.play({ action: 'deleteCall', row })),
    }));
  }
}
