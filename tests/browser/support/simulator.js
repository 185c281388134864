// A simulator of its own for a test file: a fresh device folder, a free port, a token.
import { spawn } from 'node:child_process';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

const program = process.env.ZV_SIMULATOR ?? new URL('../../../build/host/simulator/zelvora-simulator', import.meta.url).pathname;

const firstLine = (child) => new Promise((found, failed) => {
  let text = '';
  child.stdout.on('data', (data) => {
    text += data;
    if (text.includes('\n'))
      found(text);
  });
  child.on('exit', (code) => failed(new Error(`the simulator ended with ${code}: ${text}`)));
});

export class Simulator {
  static async start(...options) {
    const simulator = new Simulator();
    simulator.folder = await mkdtemp(join(tmpdir(), 'zv-browser-'));
    simulator.device = join(simulator.folder, 'device');
    await simulator.launch(options);
    return simulator;
  }

  async launch(options) {
    this.child = spawn(program, ['--device', this.device, '--no-open', ...options],
      { stdio: ['ignore', 'pipe', 'inherit'], env: { ...process.env, HOME: this.folder } });
    const line = await firstLine(this.child);
    this.letGo();
    this.address = line.match(/http:\S+/)[0];
    this.origin = new URL(this.address).origin;
    this.token = new URL(this.address).searchParams.get('token');
  }

  // A test file that fails before it has stopped its simulator ends all the same, and the simulator with it.
  letGo() {
    const { child } = this;
    child.unref();
    child.stdout.unref();
    process.once('exit', () => child.kill());
  }

  async end() {
    if (this.child.exitCode !== null || this.child.signalCode !== null)
      return;
    this.child.ref();
    const ended = new Promise((done) => this.child.once('exit', done));
    this.child.kill();
    await ended;
  }

  async stopAndRemove() {
    await this.end();
    await rm(this.folder, { recursive: true, force: true });
  }

  async get(path) {
    const response = await fetch(this.origin + path, { headers: { 'X-Zelvora-Token': this.token } });
    return response.json();
  }

  // As a script acts on the phone, past the page.
  async perform(gesture) {
    await fetch(`${this.origin}/api/gesture`, {
      method: 'POST',
      headers: { 'X-Zelvora-Token': this.token, 'Content-Type': 'application/json' },
      body: JSON.stringify(gesture),
    });
  }
}
