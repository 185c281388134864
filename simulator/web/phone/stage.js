// The pages of the phone: the one in front, and during a transition the one that leaves.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, children, classes, findElement } from '/model/elements.js';
import { movesLittle } from '/model/motion.js';
import { Page } from '/phone/page.js';

const duration = { push: 400, pop: 400, present: 400, dismiss: 400 };
const onPages = ({ type }) => !['Alert', 'Sheet', 'Keyboard'].includes(type);

const pageOf = (screen) => ({
  revision: attribute(screen, 'revision') ?? 0,
  page: attribute(screen, 'page') ?? 0,
  elements: children(screen).filter(onPages),
  title: findElement(screen, ({ type }) => type === 'NavigationBar')?.label ?? '',
});

export class Stage extends Component {
  constructor(props) {
    super(props);
    this.remembered = new Map(); // the focused row of each page that is covered
    this.moved = false;
    this.state = { front: pageOf(props.screen), leaving: null, transition: 'none' };
  }

  componentWillReceiveProps({ screen }) {
    const front = pageOf(screen);
    if (front.revision === this.state.front.revision)
      return this.setState({ front });
    this.remember();
    this.moved = true;
    const transition = attribute(screen, 'transition') ?? 'none';
    if (!duration[transition] || movesLittle())
      return this.setState({ front, leaving: null, transition: 'none' });
    this.setState({ front, leaving: this.state.front, transition });
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.setState({ leaving: null, transition: 'none' }), duration[transition]);
  }

  remember() {
    const row = this.base?.contains(document.activeElement) && document.activeElement.closest('[data-row]');
    if (row)
      this.remembered.set(this.state.front.page, row.dataset.row);
  }

  layer(page, direction) {
    const { perform, gestures, covered } = this.props;
    return h(Page, {
      key: page.revision,
      page,
      focusedRow: this.remembered.get(page.page),
      class: direction && classes(direction, this.state.transition),
      takesFocus: this.moved, // not the page with which everything begins
      live: direction !== 'leaving',
      covered: covered || direction === 'leaving',
      perform,
      gestures,
    });
  }

  render(props, { front, leaving }) {
    return h('div', { class: 'stage' },
      leaving && this.layer(leaving, 'leaving'),
      this.layer(front, leaving && 'entering'),
      h('div', { class: 'visually-hidden', 'aria-live': 'polite' }, front.title));
  }
}
