// What the page knows of the simulator. The server tells every change through one event stream; nothing is
// asked for again and again.
import { get, post } from '/model/api.js';
import { Gestures } from '/model/gestures.js';

const mostEvents = 500;

export class Store {
  constructor() {
    this.connected = true;
    this.refused = false; // by a simulator that wants another token
    this.screen = null;
    this.events = [];
    this.pending = { calls: [], ahead: 0 };
    this.files = new Map();
    this.filesSequence = null; // nothing asked for yet
    this.database = null;
    this.device = null;
    this.gestures = new Gestures();
    this.listeners = [];
  }

  listen(listener) {
    this.listeners.push(listener);
  }

  changed() {
    this.listeners.forEach((listener) => listener());
  }

  connect() {
    this.stream = new EventSource('/api/stream');
    const on = (name, take) => this.stream.addEventListener(name, ({ data }) => {
      take(JSON.parse(data));
      this.changed();
    });
    on('hello', (hello) => this.takeHello(hello));
    on('tree', ({ screen }) => { this.screen = screen; });
    on('event', (event) => this.takeEvents([event]));
    on('pending', (pending) => this.takePending(pending));
    on('files', () => this.fetchFiles());
    on('database', () => this.fetchDatabase());
    this.stream.addEventListener('error', () => this.lost());
    return this;
  }

  lost() {
    this.connected = false;
    this.changed();
    // A refused stream is closed for good by the browser; one that broke is tried again by itself.
    if (this.stream.readyState === EventSource.CLOSED)
      this.askAgain();
  }

  async askAgain() {
    const { status } = await get('/api/device');
    this.refused = status === 403;
    this.changed();
    setTimeout(() => this.connect(), 2000);
  }

  async takeHello({ life }) {
    if (life !== this.life)
      this.forget();
    this.life = life;
    this.connected = true;
    this.refused = false;
    await Promise.all([this.fetchDevice(), this.fetchEvents(), this.fetchFiles(), this.fetchDatabase()]);
  }

  // Another start of the simulator counts its events and files anew.
  forget() {
    this.events = [];
    this.files = new Map();
    this.filesSequence = null;
  }

  takeEvents(events) {
    const last = this.events.at(-1)?.number ?? 0;
    this.events = this.events.concat(events.filter(({ number }) => number > last)).slice(-mostEvents);
  }

  takePending({ now, calls }) {
    this.pending = { calls, ahead: now - Date.now() / 1000 };
  }

  async fetchEvents() {
    const { status, body } = await get(`/api/events?since=${this.events.at(-1)?.number ?? 0}`);
    if (status === 200)
      this.takeEvents(body.events);
    this.changed();
  }

  async fetchFiles() {
    const { status, body } = await get(`/api/files?since=${this.filesSequence ?? 0}`);
    if (status === 200)
      this.takeFiles(body);
    this.changed();
  }

  // Each file keeps what it held before, so that the inspector can show what has changed.
  takeFiles({ sequence, paths, files }) {
    const first = this.filesSequence === null;
    this.filesSequence = sequence;
    for (const path of [...this.files.keys()].filter((known) => !paths.includes(known)))
      this.files.delete(path);
    for (const file of files)
      this.files.set(file.path, { ...file, before: first ? file : this.files.get(file.path) ?? { entries: [] } });
    this.latestFile = files.reduce((latest, file) => (file.sequence > (latest?.sequence ?? 0) ? file : latest), null)
      ?.path ?? this.latestFile;
  }

  async fetchDatabase() {
    const { status, body } = await get('/api/database');
    this.database = status === 200 ? body : { problem: body.error ?? 'The simulator does not answer.' };
    this.changed();
  }

  async fetchDevice() {
    const { status, body } = await get('/api/device');
    if (status === 200)
      this.device = body;
    this.changed();
  }

  perform(kind, element, more = {}) {
    const target = element ? { number: element.number, part: element.part ?? '' } : {};
    return this.gestures.perform({ kind, ...target, ...more });
  }

  changeDevice(change) {
    return this.change('/api/device', change);
  }

  makeToolFail(fails) {
    return this.change('/api/zvtool', { fails });
  }

  async change(path, change) {
    const answer = await post(path, change);
    await this.fetchDevice();
    return answer;
  }

  play(action) {
    return post('/api/phone', action);
  }
}
