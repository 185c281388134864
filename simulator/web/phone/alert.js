// An alert: title, message, buttons; sometimes text fields.
import { h } from '/vendor/preact/preact.js';

import { classes, ofType, withRole } from '/model/elements.js';
import { Dialog, buttonsOf } from '/phone/dialog.js';
import { TextField } from '/phone/text-field.js';

export class Alert extends Dialog {
  render({ popup, perform, leaving }) {
    const title = withRole(popup, 'title');
    const message = withRole(popup, 'message');
    const buttons = buttonsOf(popup);
    const fields = ofType(popup, 'TextField', 'SecureTextField');
    return h('div', { class: classes('alert-place', leaving && 'leaving'), inert: leaving },
      h('div', {
        class: 'alert', role: 'alertdialog', 'aria-modal': 'true', style: { width: popup.rect.width },
        'aria-labelledby': title && 'alert-title', 'aria-describedby': message && 'alert-message',
        onKeydown: this.key,
      },
        h('div', { class: 'alert-text' },
          title && h('h2', { id: 'alert-title', class: 'alert-title' }, title.label),
          message && h('p', { id: 'alert-message', class: 'alert-message' }, message.label),
          fields.map((field) => h(TextField, { key: field.number, element: field, context: { perform, live: true } }))),
        h('div', { class: classes('alert-buttons', buttons.length === 2 && 'side-by-side') },
          buttons.map((button, index) => this.button(button, index === buttons.length - 1)))));
  }
}
