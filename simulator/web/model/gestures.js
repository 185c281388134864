// Gestures on their way to the phone: one at a time and in order, so that what a person does fast arrives as
// it was done.
import { post } from '/model/api.js';

// Of these only the latest counts: a later one replaces one that still waits for its turn.
const latestCounts = new Set(['scroll', 'slide', 'replace']);

const sameTarget = (a, b) => a.kind === b.kind && a.number === b.number && a.part === b.part;

export class Gestures {
  constructor() {
    this.waiting = [];
    this.busy = false;
  }

  // Whether gestures of this kind are still on their way.
  pending(kind) {
    return this.inFlight === kind || this.waiting.some(({ gesture }) => gesture.kind === kind);
  }

  perform(gesture) {
    return new Promise((done) => {
      const last = this.waiting.at(-1);
      if (last && latestCounts.has(gesture.kind) && sameTarget(last.gesture, gesture))
        this.replace(last, gesture, done);
      else
        this.waiting.push({ gesture, done });
      this.next();
    });
  }

  replace(waiting, gesture, done) {
    const earlier = waiting.done;
    waiting.gesture = gesture;
    waiting.done = (answer) => [earlier, done].forEach((tell) => tell(answer));
  }

  async next() {
    if (this.busy || this.waiting.length === 0)
      return;
    this.setBusy(true);
    const { gesture, done } = this.waiting.shift();
    this.inFlight = gesture.kind;
    const answer = await post('/api/gesture', gesture);
    this.inFlight = null;
    this.setBusy(false);
    done(answer);
    this.next();
  }

  // Also for those who look from outside: a test waits until nothing is on its way.
  setBusy(busy) {
    this.busy = busy;
    document.documentElement.toggleAttribute('data-busy', busy);
  }
}
