// A drag to the left on a row, with finger or mouse.
const begins = 8; // points before a drag is a drag
const enough = 40; // points after which letting go opens the row
const farthest = 82;

export class Swipe {
  constructor(done, changed) {
    this.distance = 0;
    this.moving = false;
    this.handlers = {
      onPointerdown: (event) => { this.start = { x: event.clientX, y: event.clientY }; },
      onPointermove: (event) => this.move(event, changed),
      onPointerup: () => this.end(done, changed),
      onPointercancel: () => this.end(() => {}, changed),
    };
  }

  move(event, changed) {
    if (!this.start)
      return;
    const dx = this.start.x - event.clientX;
    if (!this.moving && (dx < begins || dx < Math.abs(event.clientY - this.start.y)))
      return;
    if (!this.moving)
      event.currentTarget.setPointerCapture(event.pointerId);
    this.moving = true;
    this.distance = Math.min(Math.max(dx, 0), farthest);
    changed();
  }

  end(done, changed) {
    const far = this.moving && this.distance >= enough;
    this.swallow = this.moving;
    this.start = null;
    this.moving = false;
    this.distance = 0;
    changed();
    if (far)
      done();
    setTimeout(() => { this.swallow = false; });
  }

  // The click that follows a drag is no tap.
  consumesClick() {
    return Boolean(this.swallow);
  }
}
