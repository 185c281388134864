// One row: its texts and controls in a line, the signs of editing before and after them.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, children, childOf, classes, isEnabled, role } from '/model/elements.js';
import { CellContent, isControl } from '/phone/cell-content.js';
import { place } from '/phone/element-view.js';
import { Swipe } from '/phone/swipe.js';

const tall = 50; // rows higher than this may hold several lines

const partOf = (cell, part) => childOf(cell, (child) => child.type === 'Button' && role(child) === part);

const nameOf = (cell) => cell.label || childOf(cell, ({ type }) => type === 'StaticText')?.label || 'Row';

export class Cell extends Component {
  constructor(props) {
    super(props);
    this.swipe = new Swipe(() => this.props.context.perform('swipe', this.props.cell), () => this.setState({}));
    this.tap = () => !this.swipe.consumesClick() && this.props.context.perform('tap', this.props.cell);
    this.tapBesideControls = (event) => !event.target.closest('button, input, textarea') && this.tap();
    this.key = (event) => {
      if (event.key === 'Delete' && attribute(this.props.cell, 'swipeable'))
        this.props.context.perform('swipe', this.props.cell);
    };
  }

  componentDidUpdate({ cell }) {
    if (!attribute(cell, 'open') && attribute(this.props.cell, 'open') && this.base.contains(document.activeElement))
      this.base.querySelector('.delete-button')?.focus({ preventScroll: true });
  }

  editingButton(part, name, label) {
    const button = partOf(this.props.cell, part);
    return button && h('button', {
      type: 'button', class: name, 'aria-label': label ? `${label} ${nameOf(this.props.cell)}` : undefined,
      'data-swipe-button': part === 'delete' ? '' : undefined,
      style: part === 'delete' ? { width: button.rect.width } : undefined,
      onClick: () => this.props.context.perform('tap', button),
    }, button.label);
  }

  // A row that can be tapped is a button, unless it holds controls: those are the buttons then.
  main() {
    const { cell, context } = this.props;
    const tappable = attribute(cell, 'selectable') !== false && isEnabled(cell);
    const content = h(CellContent, { cell, context, name: nameOf(cell) });
    if (!tappable || children(cell).some(isControl))
      return h('div', { class: 'cell-main', onClick: tappable ? this.tapBesideControls : undefined }, content);
    return h('button', {
      type: 'button',
      class: 'cell-main tappable',
      'aria-keyshortcuts': attribute(cell, 'swipeable') ? 'Delete' : undefined,
      'aria-current': attribute(cell, 'accessory') === 'checkmark' ? 'true' : undefined,
      onClick: this.tap,
      onKeydown: this.key,
    }, content);
  }

  render({ cell, origin, last }) {
    const style = place(cell, origin);
    const open = attribute(cell, 'open');
    const away = open ? partOf(cell, 'delete')?.rect.width ?? 0 : this.swipe.distance;
    return h('div', {
      role: 'listitem',
      class: classes('cell', `cell-${attribute(cell, 'style')}`, attribute(cell, 'row') === 0 && 'first', last && 'last',
        !isEnabled(cell) && 'disabled', cell.selected && 'selected', open && 'open',
        cell.rect.height > tall && 'tall',
        attribute(cell, 'editing') !== 'none' && 'editable', this.swipe.moving && 'moving'),
      style: `position:absolute;left:${style.left}px;top:${style.top}px;width:${style.width}px;height:${style.height}px;` +
        `--inset:${attribute(cell, 'inset') ?? 15}px;--away:${-away}px`,
      'data-row': `${attribute(cell, 'section')}-${attribute(cell, 'row')}`,
      ...(attribute(cell, 'swipeable') && this.swipe.handlers),
    },
      this.editingButton('minus', 'minus-button', 'Delete'),
      this.main(),
      this.editingButton('delete', 'delete-button'));
  }
}
