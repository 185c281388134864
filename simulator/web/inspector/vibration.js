// The vibration pattern of the last request: drawn as phases with their milliseconds, played where the browser
// can, and shown as a pulse that runs along.
import { h, Component } from '/vendor/preact/preact.js';

import { Card, Empty } from '/inspector/card.js';

// The platform keeps the strength as a short float: 0.3 comes as 0.300000012.
const strength = ({ intensity }) => Number(intensity.toPrecision(6));

const total = (pattern) => pattern.reduce((sum, [, milliseconds]) => sum + Math.max(milliseconds, 0), 0);

const enoughForUnit = 15; // percent of the timeline

// navigator.vibrate takes vibrations and pauses in turn, a vibration first.
const vibrations = (pattern) => pattern.map(([, milliseconds]) => Math.max(milliseconds, 0));

const Phase = ({ on, milliseconds, whole, intensity }) => {
  const width = whole > 0 ? (Math.max(milliseconds, 0) / whole) * 100 : 0;
  return h('li', { class: on ? 'phase-on' : 'phase-off', style: { width: `${width}%` } },
    on && h('i', { style: { height: `${Math.min(Math.max(intensity, 0.04), 1) * 100}%` } }),
    h('span', { 'aria-hidden': 'true' }, width > enoughForUnit ? `${milliseconds} ms` : `${milliseconds}`),
    h('span', { class: 'visually-hidden' }, `${milliseconds} milliseconds of ${on ? 'vibration' : 'pause'}`));
};

export class Vibration extends Component {
  componentWillReceiveProps({ store }) {
    const latest = store.events.findLast(({ kind }) => kind === 'vibration');
    if (!latest || latest.number === this.state.event?.number)
      return;
    // Of a session that is only being read again nothing is played.
    this.setState({ event: latest, runs: this.seenBefore ? (this.state.runs ?? 0) + 1 : 0 });
    if (this.seenBefore)
      this.play(latest);
  }

  componentDidUpdate() {
    this.seenBefore = this.seenBefore || this.props.store.device !== null;
  }

  play({ vibration }) {
    if (vibration && navigator.userActivation?.hasBeenActive)
      navigator.vibrate?.(vibrations(vibration.pattern));
  }

  render(props, { event, runs }) {
    const vibration = event?.vibration;
    if (!vibration)
      return h(Card, { title: 'Vibration', name: 'vibration' },
        h(Empty, null, 'No vibration has been asked for.'));
    const whole = total(vibration.pattern);
    return h(Card, { title: 'Vibration', name: 'vibration', note: `${whole} ms, strength ${strength(vibration)}` },
      vibration.pattern.length === 0 && h(Empty, null, 'The pattern is empty: nothing is felt.'),
      h('div', { class: 'vibration' },
        h('ol', { class: 'phases', 'aria-label': 'Vibration pattern' },
          vibration.pattern.map(([on, milliseconds], index) =>
            h(Phase, { key: index, on, milliseconds, whole, intensity: vibration.intensity }))),
        runs > 0 && whole > 0 && h('span', {
          key: `run-${runs}`, class: 'pulse', 'aria-hidden': 'true', style: { animationDuration: `${whole}ms` },
        })),
      h('button', {
        type: 'button', class: 'quiet',
        onClick: () => { this.setState({ runs: (runs ?? 0) + 1 }); this.play(event); },
      }, 'Play again'));
  }
}
