// The property lists below /var/mobile/Library/Preferences; what the last change touched is marked.
import { h, Component } from '/vendor/preact/preact.js';

import { Card, Empty } from '/inspector/card.js';

const nameOf = (path) => path.slice(path.lastIndexOf('/') + 1);

// Entries with what became of each since `before`: added, changed, removed or nothing.
const compare = (entries = [], before = []) => {
  const old = new Map(before.map((entry) => [entry.key, entry]));
  const now = new Set(entries.map(({ key }) => key));
  const gone = before.filter(({ key }) => !now.has(key)).map((entry) => ({ ...entry, change: 'removed' }));
  return entries.map((entry) => {
    const earlier = old.get(entry.key);
    const same = earlier && earlier.value === entry.value && earlier.type === entry.type;
    return { ...entry, change: same ? '' : earlier ? 'changed' : 'added' };
  }).concat(gone);
};

const Entry = ({ entry }) =>
  h('tr', { class: entry.change && `entry-${entry.change}` },
    h('th', { scope: 'row' }, entry.key || '""',
      entry.change && h('span', { class: 'entry-change' }, entry.change)),
    h('td', null, h('span', { class: `value-${entry.type}` },
      entry.type === 'string' ? `"${entry.value}"` : entry.value)));

const Contents = ({ file }) => {
  if (file.problem)
    return h(Empty, null, file.problem);
  const entries = compare(file.entries, file.before?.entries);
  if (entries.length === 0)
    return h(Empty, null, 'An empty dictionary.');
  return h('table', { class: 'entries' },
    h('caption', { class: 'visually-hidden' }, `Contents of ${nameOf(file.path)}`),
    h('tbody', null, entries.map((entry) => h(Entry, { key: entry.key + entry.change, entry }))),
    file.count > file.entries.length && h('tfoot', null,
      h('tr', null, h('td', { colSpan: 2 }, `and ${file.count - file.entries.length} more`))));
};

export class Files extends Component {
  // The file that has changed last opens by itself; a person may open and close any.
  isOpen(file) {
    return this.state[file.path] ?? file.path === this.props.store.latestFile;
  }

  // Only what a person opens or closes is kept; the browser's own turning would not tell the two apart.
  turn(event, file) {
    event.preventDefault();
    this.setState({ [file.path]: !this.isOpen(file) });
  }

  componentWillReceiveProps({ store }) {
    if (store.latestFile !== this.shown || store.filesSequence !== this.sequence)
      this.setState({ [store.latestFile]: undefined });
    this.shown = store.latestFile;
    this.sequence = store.filesSequence;
  }

  render({ store }) {
    const files = [...store.files.values()].sort((a, b) => a.path.localeCompare(b.path));
    return h(Card, { title: 'Preference and list files', note: '/var/mobile/Library/Preferences', name: 'files' },
      files.length === 0 && h(Empty, null, 'No files yet: every setting has its default.'),
      files.map((file) => h('details', {
        key: file.path,
        open: this.isOpen(file),
      },
        h('summary', { onClick: (event) => this.turn(event, file) }, nameOf(file.path), h('span', { class: 'card-note' },
          file.problem ? 'unreadable' : `${file.count}`)),
        h('div', { class: 'file-contents', tabIndex: 0, role: 'group', 'aria-label': nameOf(file.path) },
          h(Contents, { file })))));
  }
}
