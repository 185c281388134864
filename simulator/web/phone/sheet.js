// An action sheet: choices in one block, Cancel in its own below.
import { h } from '/vendor/preact/preact.js';

import { classes, role, withRole } from '/model/elements.js';
import { Dialog, buttonsOf } from '/phone/dialog.js';

const isCancel = (button) => role(button) === 'cancel';

export class Sheet extends Dialog {
  render({ popup, perform, leaving }) {
    const title = withRole(popup, 'title');
    const buttons = buttonsOf(popup);
    const cancel = buttons.filter(isCancel);
    const outside = (event) => event.target === event.currentTarget && perform('tapOutside', popup);
    return h('div', { class: classes('sheet-place', leaving && 'leaving'), inert: leaving, onClick: outside },
      h('div', {
        class: 'sheet', role: 'dialog', 'aria-modal': 'true', onKeydown: this.key,
        'aria-label': title?.label ?? 'Choose an action',
      },
        h('div', { class: 'sheet-block' },
          title && h('p', { class: 'sheet-title' }, title.label),
          buttons.filter((button) => !isCancel(button)).map((button) => this.button(button))),
        cancel.length > 0 && h('div', { class: 'sheet-block' }, cancel.map((button) => this.button(button, true)))));
  }
}
