// What the settings pages do to the world outside them.
import { h } from '/vendor/preact/preact.js';

import { Activity } from '/inspector/activity.js';
import { CallHistory } from '/inspector/call-history.js';
import { DeviceControls } from '/inspector/device-controls.js';
import { Files } from '/inspector/files.js';
import { Notifications } from '/inspector/notifications.js';
import { PlayPhone } from '/inspector/play-phone.js';
import { Vibration } from '/inspector/vibration.js';

export const Inspector = ({ store }) =>
  h('aside', { class: 'inspector', 'aria-label': 'Inspector' },
    h(DeviceControls, { store }),
    h('div', { class: 'inspector-column' },
      h(Notifications, { store }),
      h(Vibration, { store }),
      h(Activity, { store })),
    h('div', { class: 'inspector-column' },
      h(Files, { store }),
      h(CallHistory, { store }),
      h(PlayPhone, { store })));
