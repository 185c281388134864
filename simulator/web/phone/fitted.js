// Shows something in its own size, or smaller where the window has no room for it.
import { h, Component } from '/vendor/preact/preact.js';

const smallest = 0.5;
const room = { across: 24, down: 56 }; // of the window, for the margins around it

export class Fitted extends Component {
  constructor(props) {
    super(props);
    this.fit = () => this.measure();
  }

  componentDidMount() {
    this.observer = new ResizeObserver(this.fit);
    this.observer.observe(this.base.firstElementChild);
    window.addEventListener('resize', this.fit);
    this.measure();
  }

  componentWillUnmount() {
    this.observer.disconnect();
    window.removeEventListener('resize', this.fit);
  }

  // Of the box's own size, which a transform does not change.
  measure() {
    const { offsetWidth: width, offsetHeight: height } = this.base.firstElementChild;
    const { clientWidth, clientHeight } = document.documentElement;
    const fitting = Math.min((clientWidth - room.across) / width, (clientHeight - room.down) / height);
    const scale = Math.max(Math.min(fitting, 1), smallest);
    if (scale !== this.state.scale || width !== this.state.width || height !== this.state.height)
      this.setState({ scale, width, height });
  }

  render({ children }, { scale = 1, width, height }) {
    const smaller = scale < 1;
    const size = smaller ? { width: width * scale, height: height * scale } : { width: '', height: '' };
    return h('div', { class: 'fitted', style: size },
      h('div', { class: 'fitted-content', style: { transform: smaller ? `scale(${scale})` : '' } }, children));
  }
}
