// Darwin notifications: those posted, and the one that waits for its three seconds.
import { h, Component } from '/vendor/preact/preact.js';

import { Card, Empty } from '/inspector/card.js';
import { exact } from '/inspector/time.js';

// What the notification is called that a delayed call will post.
const announced = { postSettingsChangedNotification: 'ZVSettingsChanged' };

class Countdown extends Component {
  componentDidMount() {
    const tick = () => {
      this.setState({ now: Date.now() / 1000 });
      this.frame = requestAnimationFrame(tick);
    };
    tick();
  }

  componentWillUnmount() {
    cancelAnimationFrame(this.frame);
  }

  render({ call, ahead }, { now = Date.now() / 1000 }) {
    const left = Math.max(call.due - ahead - now, 0);
    const name = announced[call.selector] ?? call.selector;
    return h('li', { class: 'countdown' },
      h('span', { class: 'countdown-name' }, name, h('small', null, ' pending')),
      h('span', { class: 'countdown-left', role: 'timer', 'aria-label': `seconds until ${name}` }, `${left.toFixed(1)} s`),
      h('span', { class: 'countdown-bar', 'aria-hidden': 'true' },
        h('i', { style: { width: `${call.delay > 0 ? (left / call.delay) * 100 : 0}%` } })));
  }
}

export const Notifications = ({ store }) => {
  const posted = store.events.filter(({ kind }) => kind === 'notification').reverse();
  const { calls, ahead } = store.pending;
  return h(Card, { title: 'Darwin notifications', note: posted.length || '', name: 'notifications' },
    calls.length > 0 && h('ul', { class: 'countdowns' },
      calls.map((call) => h(Countdown, { key: call.selector, call, ahead }))),
    posted.length === 0 && calls.length === 0 && h(Empty, null, 'None posted yet. Change a setting.'),
    h('ol', { class: 'log', 'aria-label': 'Posted notifications', tabIndex: posted.length ? 0 : undefined },
      posted.map((event) => h('li', { key: event.number },
        h('time', null, exact(event.time)), h('code', null, event.text)))));
};
