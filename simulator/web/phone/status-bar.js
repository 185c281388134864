// The bar above every page. The phone in it has no network and a full battery.
import { h, Component } from '/vendor/preact/preact.js';

const minute = 60_000;
const clock = () => new Date().toLocaleTimeString([], { hour: 'numeric', minute: '2-digit' });

export class StatusBar extends Component {
  componentDidMount() {
    this.timer = setInterval(() => this.setState({ now: clock() }), minute / 4);
    this.setState({ now: clock() });
  }

  componentWillUnmount() {
    clearInterval(this.timer);
  }

  render(props, { now }) {
    return h('div', { class: 'status-bar', 'aria-hidden': 'true' },
      h('span', { class: 'status-signal' }, [1, 2, 3, 4, 5].map((bar) => h('i', { key: bar }))),
      h('span', { class: 'status-time' }, now),
      h('span', { class: 'status-battery' }, h('i')));
  }
}
