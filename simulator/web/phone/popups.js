// The alert or sheet in front, and for a moment the one that has just gone.
import { h, Component } from '/vendor/preact/preact.js';

import { classes } from '/model/elements.js';
import { movesLittle } from '/model/motion.js';
import { Alert } from '/phone/alert.js';
import { Sheet } from '/phone/sheet.js';

const farewell = 300;

export class Popups extends Component {
  componentWillReceiveProps({ popup }) {
    const before = this.props.popup;
    if (!before || popup?.number === before.number)
      return;
    if (movesLittle())
      return;
    this.setState({ leaving: before });
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.setState({ leaving: null }), farewell);
  }

  view(popup, leaving) {
    const { perform } = this.props;
    return h(popup.type === 'Alert' ? Alert : Sheet, { key: popup.number, popup, perform, leaving });
  }

  render({ popup }, { leaving }) {
    return h('div', { class: 'popups' },
      h('div', { class: classes('dim', popup && 'shown') }),
      leaving && leaving.number !== popup?.number && this.view(leaving, true),
      popup && this.view(popup, false));
  }
}
