// What a text field, a text view and a search field have in common: the person types here and now, the phone
// hears of it a moment later, and its answer must not undo what has been typed since.
import { Component } from '/vendor/preact/preact.js';

import { attribute } from '/model/elements.js';

export class LiveText extends Component {
  constructor(props) {
    super(props);
    this.unanswered = 0;
    this.own = props.element.value ?? '';
    this.input = (event) => !event.isComposing && this.tell(event.target.value);
    this.composed = (event) => this.tell(event.target.value);
    this.focus = () => !attribute(this.props.element, 'focused') && this.act('tap');
    this.key = (event) => this.pressed(event);
    this.hold = (field) => { this.field = field; };
  }

  componentDidMount() {
    this.follow();
  }

  componentDidUpdate() {
    this.follow();
  }

  // Takes over text and focus from the phone, unless the person is ahead of it.
  follow() {
    const { element, context } = this.props;
    if (!this.field || !context.live)
      return;
    if (this.unanswered === 0 && this.field.value !== (element.value ?? ''))
      this.field.value = element.value ?? '';
    const focused = Boolean(attribute(element, 'focused'));
    if (focused && !this.hadFocus && document.activeElement !== this.field)
      this.field.focus({ preventScroll: true });
    if (!focused && this.hadFocus && document.activeElement === this.field)
      this.field.blur();
    this.hadFocus = focused;
  }

  async act(kind, more) {
    this.unanswered += 1;
    await this.props.context.perform(kind, this.props.element, more);
    this.unanswered -= 1;
    if (this.unanswered === 0)
      this.setState({});
  }

  tell(text) {
    this.act('replace', { text });
  }

  pressed(event) {
    if (event.key !== 'Enter' || event.isComposing)
      return;
    event.preventDefault();
    this.act('returnKey');
  }
}
