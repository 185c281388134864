// A table. It holds the rows that the phone shows; the browser scrolls, tells the phone how far, and the rows
// for that place come with the next tree.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, children, classes, contains, role } from '/model/elements.js';
import { ElementView } from '/phone/element-view.js';
import { Section } from '/phone/section.js';

const settled = 150; // milliseconds after the last scroll event

const isIndex = (element) => element.part === 'index';
const isText = (element) => contains(element, () => true) || element.type === 'StaticText';

const sectionText = (element, wanted) =>
  element.type === 'StaticText' ? role(element) === wanted : contains(element, (child) => role(child) === wanted);

// Headers, rows and footers in their order, put together by section.
const sectionsOf = (elements) => {
  const sections = [];
  const begin = (part) => sections[sections.push({ rows: [], ...part }) - 1];
  let current = null;
  for (const element of elements) {
    if (element.type === 'Cell') {
      const number = attribute(element, 'section');
      if (!current || current.footer || (current.number ?? number) !== number)
        current = begin({});
      current.number = number;
      current.rows.push(element);
    } else if (sectionText(element, 'header')) {
      current = begin({ header: element });
    } else if (sectionText(element, 'footer') && isText(element)) {
      if (!current || current.footer)
        current = begin({});
      current.footer = element;
    } else {
      begin({ other: element });
      current = null;
    }
  }
  return sections;
};

export class Table extends Component {
  constructor(props) {
    super(props);
    this.lastScroll = 0;
    this.knownTop = 0;
    this.scrolled = () => this.tellOffset();
  }

  componentDidMount() {
    this.follow();
  }

  componentDidUpdate() {
    this.follow();
  }

  get top() {
    return attribute(this.props.element, 'top') ?? 0;
  }

  // Takes the phone's offset over, unless a person is scrolling here: then the browser is ahead of the phone, and
  // may even be ahead of its own event that says so.
  follow() {
    const { element, context } = this.props;
    const wanted = (attribute(element, 'offset') ?? 0) + this.top;
    const person = Date.now() - this.lastScroll < settled || context.gestures.pending('scroll') ||
      this.base.scrollTop !== this.knownTop;
    if (!context.live || person || Math.abs(wanted - this.base.scrollTop) < 1)
      return;
    this.base.scrollTop = wanted;
    this.knownTop = this.base.scrollTop;
  }

  // The event of a scroll that follow() made tells nothing new.
  async tellOffset() {
    const { element, context } = this.props;
    if (!context.live || this.base.scrollTop === this.knownTop)
      return;
    this.knownTop = this.base.scrollTop;
    this.lastScroll = Date.now();
    await context.perform('scroll', element, { amount: this.base.scrollTop - this.top });
  }

  render({ element, context, title }) {
    const { rect } = element;
    const origin = { x: rect.x, y: rect.y - this.top - (attribute(element, 'offset') ?? 0) };
    const parts = children(element);
    const index = parts.find(isIndex);
    return h('div', {
      class: classes('table', attribute(element, 'style'), attribute(element, 'editing') && 'editing'),
      style: { left: rect.x, top: rect.y, width: rect.width, height: rect.height },
      onScroll: this.scrolled,
    },
      h('div', {
        class: 'table-content',
        style: { minHeight: rect.height, height: (attribute(element, 'contentHeight') ?? 0) + this.top },
      },
        sectionsOf(parts.filter((part) => !isIndex(part))).map((section, position) =>
          h(Section, { key: section.number ?? `other-${position}`, section, context, title, origin }))),
      index && h('div', { class: 'index-place' },
        h('div', { class: 'index', style: { top: 0, height: index.rect.height } },
          children(index).map((letter) => h(ElementView, { key: letter.part, element: letter, context, flows: true })))));
  }
}
