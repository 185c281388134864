// The index of a long list, at its right edge: a touch on a letter, or a drag along them, shows its section.
import { h, Component } from '/vendor/preact/preact.js';

import { children } from '/model/elements.js';
import { place } from '/phone/element-view.js';
import { Magnifier } from '/phone/glyphs.js';

const search = '{search}'; // the system's sign for the search field above the list

export class Index extends Component {
  constructor(props) {
    super(props);
    this.press = (event) => { this.touched = null; this.touch(event); };
    this.drag = (event) => event.buttons && this.touch(event);
  }

  letterAt({ clientX, clientY }) {
    const button = document.elementFromPoint(clientX, clientY)?.closest('[data-index]');
    return button && children(this.props.index).find(({ part }) => part === button.dataset.index);
  }

  // Of the letters that a fast drag crosses only the latest counts.
  async touch(event) {
    this.wanted = this.letterAt(event) ?? this.wanted;
    if (this.busy)
      return;
    this.busy = true;
    while (this.wanted && this.wanted.part !== this.touched) {
      this.touched = this.wanted.part;
      await this.props.perform('tap', this.wanted);
    }
    this.busy = false;
  }

  letter(element) {
    return h('button', {
      type: 'button',
      key: element.part,
      'data-index': element.part,
      style: place(element, this.props.index.rect),
      'aria-label': element.label === search ? 'Search' : element.label,
      // A pointer has already touched it when it clicks; the keyboard clicks only.
      onClick: ({ detail }) => detail === 0 && this.props.perform('tap', element),
    }, element.label === search ? h(Magnifier) : element.label);
  }

  render({ index, frame }) {
    return h('div', {
      class: 'index', role: 'group', 'aria-label': 'Index', style: place(index, frame),
      onPointerdown: this.press, onPointermove: this.drag,
    }, children(index).map((letter) => this.letter(letter)));
  }
}
