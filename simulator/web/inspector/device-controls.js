// The phone's own settings. Some of them start the simulator anew; the page follows by itself.
import { h, Component } from '/vendor/preact/preact.js';

const versions = ['7.0', '7.1.2', '8.0', '8.1', '8.1.2', '8.3', '8.4.1'];
const regions = ['US', 'CN', 'HK', 'TW', 'JP', 'DE', 'FR', 'ES', 'IT', 'RU', 'BR', 'GB'];
const nameOrders = [
  ['1-0', 'sorted by last name, first name first'],
  ['0-0', 'sorted by first name, first name first'],
  ['1-1', 'sorted by last name, last name first'],
  ['0-1', 'sorted by first name, last name first'],
];

const including = (list, current) => (list.includes(current) ? list : [current, ...list]);
const plain = (list) => list.map((value) => [value, value]);

export class DeviceControls extends Component {
  async tell(request) {
    const { status, body } = await request;
    this.setState({ answer: status < 300 ? '' : body.error ?? '' });
  }

  choice(label, value, options, take) {
    const id = `device-${label}`;
    return h('div', { class: 'field' }, h('label', { for: id }, label), h('select', {
      id,
      onChange: ({ target }) => this.tell(take(target.value)),
    }, options.map(([key, text]) => h('option', { key, value: key, selected: key === value }, text))));
  }

  render({ store, store: { device } }, { answer }) {
    if (!device)
      return null;
    const one = (name) => (value) => store.changeDevice({ [name]: value });
    const order = `${device.sortOrdering}-${device.compositeNameFormat}`;
    return h('section', { class: 'device-controls', 'aria-label': 'Device' },
      this.choice('iOS', device.systemVersion, plain(including(versions, device.systemVersion)), one('systemVersion')),
      this.choice('Language', device.language, plain(including(device.languages, device.language)), one('language')),
      this.choice('Region', device.region, plain(including(regions, device.region)), one('region')),
      this.choice('Screen', device.screen, plain(device.screens), one('screen')),
      this.choice('Contacts', order, nameOrders, (value) => {
        const [sortOrdering, compositeNameFormat] = value.split('-').map(Number);
        return store.changeDevice({ sortOrdering, compositeNameFormat });
      }),
      device.bundles.length > 1 && this.choice('Bundle', '', [['', 'open…'], ...plain(device.bundles)], one('bundle')),
      parseFloat(device.systemVersion) < 8 && this.choice('zvtool', device.zvtoolFails ? 'fails' : 'works',
        plain(['works', 'fails']), (value) => store.makeToolFail(value === 'fails')),
      h('p', { class: 'answer', role: 'status' }, answer));
  }
}
