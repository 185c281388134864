// A table. It holds the rows that the phone shows; the browser scrolls, tells the phone how far, and the rows
// for that place come with the next tree. Until then the rows that were there before stand in for them.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, children, classes, role } from '/model/elements.js';
import { KeptFocus } from '/model/focus.js';
import { Index } from '/phone/index-bar.js';
import { RowMemory } from '/phone/row-memory.js';
import { ScrollLead } from '/phone/scroll-lead.js';
import { Section } from '/phone/section.js';
import { sectionsOf } from '/phone/sections.js';

const settled = 150; // milliseconds after the last scroll event

const isIndex = (element) => element.type === 'Other' && role(children(element)[0] ?? {}) === 'index';

export class Table extends Component {
  constructor(props) {
    super(props);
    this.lastScroll = 0;
    this.knownTop = 0;
    this.memory = new RowMemory();
    this.focus = new KeptFocus();
    this.lead = new ScrollLead(() => this.tellOffset(0));
    this.hold = (scroller) => { this.scroller = scroller; };
    this.scrolled = () => this.personScrolled();
  }

  componentDidMount() {
    this.follow();
  }

  componentWillUpdate() {
    this.focus.hold(this.base);
  }

  componentDidUpdate() {
    this.focus.restore();
    this.follow();
  }

  componentWillUnmount() {
    this.lead.end();
  }

  get top() {
    return attribute(this.props.element, 'top') ?? 0;
  }

  // Takes the phone's offset over, unless a person is scrolling here: then the browser is ahead of the phone, and
  // may even be ahead of its own event that says so.
  follow() {
    const { element, context } = this.props;
    const { scroller } = this;
    const wanted = (attribute(element, 'offset') ?? 0) + this.top;
    const person = Date.now() - this.lastScroll < settled || context.gestures.pending('scroll') ||
      this.lead.ahead || scroller.scrollTop !== this.knownTop;
    if (!context.live || person || Math.abs(wanted - scroller.scrollTop) < 1)
      return;
    scroller.scrollTop = wanted;
    this.knownTop = scroller.scrollTop;
  }

  // The event of a scroll that follow() made tells nothing new.
  personScrolled() {
    if (!this.scroller || !this.props.context.live || this.scroller.scrollTop === this.knownTop)
      return;
    const { scrollTop, clientHeight } = this.scroller;
    this.knownTop = scrollTop;
    this.lastScroll = Date.now();
    this.tellOffset(this.lead.take(scrollTop, clientHeight / 2));
  }

  async tellOffset(lead) {
    const { element, context } = this.props;
    const { scrollTop, scrollHeight, clientHeight } = this.scroller;
    const wanted = Math.min(Math.max(scrollTop + lead, 0), scrollHeight - clientHeight);
    await this.lead.time(() => context.perform('scroll', element, { amount: wanted - this.top }));
  }

  sections(parts, origin) {
    const { context, title } = this.props;
    return sectionsOf(parts).map((section, position) =>
      h(Section, { key: section.number ?? `other-${position}`, section, context, title, origin }));
  }

  // Rows that the phone does not show any more: to be seen only, and only for a moment.
  remembered() {
    const { context } = this.props;
    return h('div', { class: 'remembered', 'aria-hidden': 'true', inert: true },
      this.memory.others().map(({ key, element, origin }) =>
        h(Section, { key, section: sectionsOf([element])[0], context, origin, remembered: true })));
  }

  render({ element, context }) {
    const { rect } = element;
    const origin = { x: rect.x, y: rect.y - this.top - (attribute(element, 'offset') ?? 0) };
    const parts = children(element).filter((part) => !isIndex(part));
    const index = children(element).find(isIndex);
    this.memory.take(element, parts, origin);
    return h('div', {
      class: 'table-frame', style: { left: rect.x, top: rect.y, width: rect.width, height: rect.height },
    },
      h('div', {
        class: classes('table', attribute(element, 'style'), attribute(element, 'editing') && 'editing'),
        ref: this.hold,
        onScroll: this.scrolled,
      },
        h('div', {
          class: 'table-content',
          style: { minHeight: rect.height, height: (attribute(element, 'contentHeight') ?? 0) + this.top + (attribute(element, 'bottom') ?? 0) },
        }, this.remembered(), this.sections(parts, origin))),
      index && h(Index, { index, frame: rect, perform: context.perform }));
  }
}
