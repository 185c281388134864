// The bar above every page. The phone in it has no network and a full battery.
import { h, Component } from '/vendor/preact/preact.js';

const minute = 60_000;

// A language or region that the browser does not know is written as the browser pleases.
const clock = (locale) => {
  const time = (locales) => new Date().toLocaleTimeString(locales, { hour: 'numeric', minute: '2-digit' });
  try {
    return time(locale);
  } catch {
    return time();
  }
};

export class StatusBar extends Component {
  componentDidMount() {
    this.timer = setInterval(() => this.setState({}), minute / 4);
  }

  componentWillUnmount() {
    clearInterval(this.timer);
  }

  render({ locale }) {
    return h('div', { class: 'status-bar', 'aria-hidden': 'true' },
      h('span', { class: 'status-signal' }, [1, 2, 3, 4, 5].map((bar) => h('i', { key: bar }))),
      h('span', { class: 'status-time' }, clock(locale)),
      h('span', { class: 'status-battery' }, h('i')));
  }
}
