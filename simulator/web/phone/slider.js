// A slider. While it is dragged the knob follows the finger; what the page makes of it comes with the next tree.
import { h, Component } from '/vendor/preact/preact.js';

import { attribute, isEnabled } from '/model/elements.js';

const end = (address) => address && h('img', { class: 'slider-end', src: address, alt: '' });

export class Slider extends Component {
  constructor(props) {
    super(props);
    this.drag = ({ target }) => {
      this.setState({ dragged: target.valueAsNumber });
      if (attribute(this.props.element, 'continuous'))
        this.slide(target.valueAsNumber);
    };
    this.release = async ({ target }) => {
      await this.slide(target.valueAsNumber);
      this.setState({ dragged: null });
    };
  }

  slide(amount) {
    return this.props.context.perform('slide', this.props.element, { amount });
  }

  render({ element, name, style }, { dragged }) {
    const least = attribute(element, 'minimum') ?? 0;
    const most = attribute(element, 'maximum') ?? 1;
    const value = dragged ?? Number(element.value);
    const filled = most > least ? Math.min(Math.max((value - least) / (most - least), 0), 1) : 0;
    return h('span', { class: 'slider', style },
      end(attribute(element, 'minimumImage')),
      h('input', {
        type: 'range', min: least, max: most, step: 'any', value,
        style: `--filled: ${filled}`,
        'aria-label': element.label || name,
        disabled: !isEnabled(element),
        onInput: this.drag,
        onChange: this.release,
      }),
      end(attribute(element, 'maximumImage')));
  }
}
