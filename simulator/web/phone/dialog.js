// What alerts and sheets have in common: they take the focus, keep it, and Escape means Cancel.
import { h, Component } from '/vendor/preact/preact.js';

import { classes, role } from '/model/elements.js';

const inReadingOrder = (a, b) => a.rect.y - b.rect.y || a.rect.x - b.rect.x;

export const buttonsOf = (popup) =>
  (popup.children ?? []).filter(({ type }) => type === 'Button').sort(inReadingOrder);

export class Dialog extends Component {
  constructor(props) {
    super(props);
    this.key = (event) => this.pressed(event);
  }

  componentDidMount() {
    this.opener = document.activeElement;
    (this.base.querySelector('input, .dialog-preferred') ?? this.base.querySelector('button'))
      ?.focus({ preventScroll: true });
  }

  componentWillUnmount() {
    if (this.opener?.isConnected && !this.opener.closest('[inert]'))
      this.opener.focus({ preventScroll: true });
  }

  pressed(event) {
    if (event.key === 'Escape')
      this.cancel();
    if (event.key === 'Tab')
      this.keepFocus(event);
  }

  cancel() {
    const { popup, perform } = this.props;
    const button = buttonsOf(popup).find((candidate) => role(candidate) === 'cancel');
    if (button)
      perform('tap', button);
  }

  keepFocus(event) {
    const stops = [...this.base.querySelectorAll('button:not([disabled]), input')];
    const edge = event.shiftKey ? stops[0] : stops.at(-1);
    if (document.activeElement !== edge)
      return;
    event.preventDefault();
    (event.shiftKey ? stops.at(-1) : stops[0]).focus();
  }

  button(element, preferred) {
    return h('button', {
      type: 'button',
      key: element.part,
      class: classes('dialog-button', `dialog-${role(element)}`, preferred && 'dialog-preferred'),
      disabled: this.props.leaving || element.enabled === false,
      onClick: () => this.props.perform('tap', element),
    }, element.label);
  }
}
