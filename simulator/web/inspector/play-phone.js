// Playing the phone's part: a call comes in, the system deletes an old one, another program posts something.
import { h, Component } from '/vendor/preact/preact.js';

import { Card } from '/inspector/card.js';

export class PlayPhone extends Component {
  constructor(props) {
    super(props);
    this.state = { number: '+1 202 555 0143', name: 'ZVAreaChanged', outgoing: false };
  }

  async play(action) {
    const { status, body } = await this.props.store.play(action);
    this.setState({ answer: status === 200 ? '' : body.error ?? 'The simulator does not answer.' });
  }

  field(label, name) {
    return h('div', { class: 'field' }, h('label', { for: `play-${name}` }, label), h('input', {
      id: `play-${name}`,
      value: this.state[name],
      onInput: ({ target }) => this.setState({ [name]: target.value }),
    }));
  }

  button(text) {
    return h('button', { type: 'submit' }, text);
  }

  render(props, { number, outgoing, name, answer }) {
    const submit = (action) => (event) => { event.preventDefault(); this.play(action); };
    return h(Card, { title: 'Play the phone', name: 'play' },
      h('form', { onSubmit: submit({ action: 'addCall', number, outgoing }) },
        this.field('Number', 'number'),
        h('label', { class: 'tick' }, h('input', {
          type: 'checkbox', checked: outgoing, onChange: ({ target }) => this.setState({ outgoing: target.checked }),
        }), 'outgoing'),
        this.button('Add call')),
      h('form', { onSubmit: submit({ action: 'deleteCall' }) },
        h('span', { class: 'form-text' }, 'As the system does when its list is full'),
        this.button('Delete oldest call')),
      h('form', { onSubmit: submit({ action: 'notify', name }) },
        this.field('Darwin notification', 'name'),
        this.button('Post')),
      h('p', { class: 'answer', role: 'status' }, answer));
  }
}
