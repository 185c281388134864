// While a person scrolls on, the answer of the phone is a little late. This says how far ahead to ask, from the speed of
// the scrolling and the time that an answer takes, and when the scrolling has ended so that the true place can be told.
const steady = 60; // milliseconds; scroll events further apart are single jumps
const rest = 100; // milliseconds without a scroll event

export class ScrollLead {
  constructor(ended) {
    this.ended = ended;
    this.answerTime = 0;
    this.at = 0;
    this.ahead = false;
  }

  // The lead in points for a scroll that has come to `top`; at most `most`.
  take(top, most) {
    const now = performance.now();
    const speed = now - this.at < steady ? (top - this.top) / Math.max(now - this.at, 1) : 0;
    const lead = Math.min(Math.max(speed * this.answerTime, -most), most);
    this.at = now;
    this.top = top;
    this.setAhead(this.ahead || Math.abs(lead) >= 1);
    return lead;
  }

  setAhead(ahead) {
    clearTimeout(this.timer);
    this.ahead = ahead;
    document.documentElement.toggleAttribute('data-scrolling', ahead);
    if (ahead)
      this.timer = setTimeout(() => this.end(this.ended), rest);
  }

  end(tell = () => {}) {
    this.setAhead(false);
    tell();
  }

  // Runs the request and learns how long an answer takes.
  async time(request) {
    const begin = performance.now();
    await request();
    this.answerTime += (performance.now() - begin - this.answerTime) / 4;
  }
}
