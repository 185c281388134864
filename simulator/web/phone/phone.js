// The phone: its body, and the screen in it.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, childOf, classes, findElement, ofType } from '/model/elements.js';
import { Keyboard } from '/phone/keyboard.js';
import { Popups } from '/phone/popups.js';
import { Stage } from '/phone/stage.js';
import { StatusBar } from '/phone/status-bar.js';

const isPopup = ({ type }) => type === 'Alert' || type === 'Sheet';
const openCell = (screen) => findElement(screen, (element) => element.type === 'Cell' && attribute(element, 'open'));

export class Phone extends Component {
  constructor(props) {
    super(props);
    this.perform = (kind, element, more) => this.props.store.perform(kind, element, more);
    this.closeSwipe = (event) => this.closeSwipedCell(event);
  }

  // A touch anywhere else closes a row that shows its Delete button, and does nothing besides.
  closeSwipedCell(event) {
    const cell = openCell(this.props.screen);
    if (!cell || event.target.closest('[data-swipe-button]'))
      return;
    event.preventDefault();
    event.stopPropagation();
    if (event.type === 'pointerdown')
      this.perform('closeSwipe', cell);
  }

  render({ screen, store, device }) {
    const { width, height } = screen.rect;
    const popup = childOf(screen, isPopup);
    const language = attribute(screen, 'language');
    const old = parseFloat(device?.systemVersion ?? '8') < 8;
    return h('div', { class: classes('phone', old && 'ios7'), lang: language },
      h('div', { class: 'phone-ear', 'aria-hidden': 'true' }),
      h('div', {
        class: classes('screen', attribute(screen, 'scale') === 3 && 'screen-3x'),
        style: { width, height },
        onPointerdownCapture: this.closeSwipe,
        onClickCapture: this.closeSwipe,
      },
        h(Stage, { screen, perform: this.perform, gestures: store.gestures, covered: Boolean(popup) }),
        h(StatusBar, { locale: device && `${device.language}-${device.region}` }),
        h(Keyboard, { keyboard: ofType(screen, 'Keyboard')[0], language, perform: this.perform }),
        h(Popups, { popup, perform: this.perform })),
      h('div', { class: 'phone-home', 'aria-hidden': 'true' }));
  }
}
