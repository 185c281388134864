// One page: its content, and the navigation bar over it.
import { h, Component } from '/vendor/preact/preact.js';

import { classes } from '/model/elements.js';
import { ElementView } from '/phone/element-view.js';
import { NavigationBar } from '/phone/navigation-bar.js';

const isBar = ({ type }) => type === 'NavigationBar';

export class Page extends Component {
  // A new page takes the focus from the one that it covers, and gives it back to the row that opened it.
  componentDidMount() {
    const lost = document.activeElement === document.body || document.activeElement?.closest('.stage');
    if (!lost || !this.props.takesFocus)
      return;
    const row = this.props.focusedRow && this.base.querySelector(`[data-row="${this.props.focusedRow}"]`);
    const target = row?.querySelector('button, input') ?? this.base;
    if (!this.base.querySelector('[data-focused]'))
      target.focus({ preventScroll: true });
  }

  render({ page, live, covered, perform, gestures, class: motion }) {
    const context = { perform, gestures, live };
    return h('div', {
      class: classes('page-layer', motion),
      tabIndex: -1,
      role: 'group',
      'aria-label': page.title,
      inert: covered,
    },
      page.elements.filter(isBar).map((bar) => h(NavigationBar, { key: 'bar', bar, context })),
      h('div', { class: 'page-content', key: 'content' },
        page.elements.filter((element) => !isBar(element)).map((element, index) =>
          h(ElementView, { key: element.number ?? index, element, context, title: page.title }))));
  }
}
