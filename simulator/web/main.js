// The page: one store, one tree of components.
import { h, render } from '/vendor/preact/preact.js';

import { App } from '/app.js';
import { Store } from '/model/store.js';

render(h(App, { store: new Store().connect() }), document.body);
