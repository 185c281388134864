// Any element: the component that shows its type.
import { h } from '/vendor/preact/preact.js';

import { children } from '/model/elements.js';
import { PushButton } from '/phone/push-button.js';
import { Label } from '/phone/label.js';
import { Picture } from '/phone/picture.js';
import { SearchField } from '/phone/search-field.js';
import { Segments } from '/phone/segments.js';
import { Slider } from '/phone/slider.js';
import { Spinner } from '/phone/spinner.js';
import { Switch } from '/phone/switch.js';
import { Table } from '/phone/table.js';
import { TextField } from '/phone/text-field.js';
import { TextView } from '/phone/text-view.js';

const views = {
  ActivityIndicator: Spinner,
  Button: PushButton,
  Image: Picture,
  SearchField,
  SecureTextField: TextField,
  SegmentedControl: Segments,
  Slider,
  StaticText: Label,
  Switch,
  Table,
  TextField,
  TextView,
};

export const hasView = ({ type }) => type in views;

// The place of an element that nothing lays out, within the box that begins at `origin`.
export const place = ({ rect }, origin = { x: 0, y: 0 }) => ({
  position: 'absolute',
  left: rect.x - origin.x,
  top: rect.y - origin.y,
  width: rect.width,
  height: rect.height,
});

// `name` is what a control is called where it has no label of its own.
export const ElementView = ({ element, context, title, name, origin, flows }) => {
  const view = views[element.type];
  const style = flows || element.type === 'Table' ? undefined : place(element, origin);
  if (view)
    return h(view, { element, context, title, name, style });
  return h('div', { class: 'other', style },
    children(element).map((child, index) =>
      h(ElementView, { key: child.number ?? index, element: child, context, name, origin: element.rect })));
};
