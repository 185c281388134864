// The whole page: the phone, and beside it what it does to its world.
import { h, Component } from '/vendor/preact/preact.js';

import { Inspector } from '/inspector/inspector.js';
import { Offline } from '/offline.js';
import { Fitted } from '/phone/fitted.js';
import { Phone } from '/phone/phone.js';

export class App extends Component {
  componentDidMount() {
    this.props.store.listen(() => this.setState({ change: {} }));
  }

  render({ store }) {
    return h('div', { class: 'page' },
      h(Offline, { store }),
      h('main', { class: 'columns' },
        h('section', { class: 'phone-column', 'aria-label': 'Phone' },
          h('h1', { class: 'visually-hidden' }, 'Settings for Linux'),
          store.screen && h(Fitted, null, h(Phone, { store, screen: store.screen, device: store.device }))),
        h(Inspector, { store })));
  }
}
