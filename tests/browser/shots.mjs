// Takes a picture of every page in the languages given, and one sheet a page with the languages side by side.
// usage: node shots.mjs SIMULATOR OUTPUT-FOLDER LANGUAGE...
import { spawn } from 'node:child_process';
import { mkdtemp, readdir, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

import { chromium } from 'playwright-core';

const [simulator, output, ...languages] = process.argv.slice(2);
const SCREEN_HEIGHT = 568, BARS = 64, PIXELS_PER_POINT = 2;

// What a person does to see each page, from the root page: rows by identifier, or by section and row.
const TOUR = [
  { name: 'keypad', taps: ['Keypad'] },
  { name: 'key-tones', taps: ['Keypad', 'KeypadTones'] },
  { name: 'recents', taps: ['Recents'] },
  { name: 'filters', taps: ['Filters'] },
  { name: 'filter', taps: ['Filters', 'FilterMode'] },
  { name: 'area-database', taps: ['AreaDatabase'] },
  { name: 'code-table', taps: ['T9Database'] },
  { name: 'area-list', taps: ['AreaList'] },
  { name: 'area-editor', taps: ['AreaList', [0, 0]], modal: true },
  { name: 'code-list', taps: ['T9List'] },
  { name: 'code-editor', taps: ['T9List', [1, 0]], modal: true },
  { name: 'blacklist', taps: ['Blacklist'] },
  { name: 'blacklist-editing', taps: ['Blacklist'], button: 'right' },
  { name: 'number-editor', taps: ['Blacklist', [0, 0]], modal: true },
  { name: 'contacts', taps: ['Blacklist', [0, 1]], modal: true },
  { name: 'call-history', taps: ['Blacklist', [0, 2]], modal: true },
  { name: 'history-limit', taps: ['CallHistoryLimit'] },
  { name: 'question', taps: ['CallHistoryLimit', [0, 1]], alert: 'cancel' },
  { name: 'call-time', taps: ['CallTime'] },
  { name: 'call-time-editor', taps: ['CallTime', [0, 0]], modal: true },
  { name: 'duration', taps: ['ConnectedVibrateTotalDuration'] },
  { name: 'tools', taps: [], button: 'right', alert: 'cancel' },
];

/** Starts a phone with this language; answers its address when it is ready. */
const startPhone = (device, language) => new Promise((done, fail) => {
  const phone = spawn(simulator, ['--device', device, '--language', language, '--no-open']);
  phone.on('error', fail);
  phone.stdout.on('data', (text) => {
    const address = /http:\S+/.exec(text);
    if (address) done({ phone, address: address[0] });
  });
});

const all = (element, accept) =>
  [...(accept(element) ? [element] : []), ...(element.children ?? []).flatMap((child) => all(child, accept))];

/** The hand on the phone, through the interface that the page itself uses. */
class Hand {
  constructor(page) { this.page = page; }

  async screen() {
    return (await this.page.evaluate(async () => (await fetch('/api/screen')).json())).screen;
  }

  async perform(gesture) {
    const status = await this.page.evaluate(async (body) => (await fetch('/api/gesture', {
      method: 'POST', headers: { 'Content-Type': 'application/json' }, body: JSON.stringify(body),
    })).status, gesture);
    if (status !== 200) throw new Error(`${JSON.stringify(gesture)}: ${status}`);
  }

  async table() { return all(await this.screen(), (element) => element.type === 'Table').at(-1); }

  async tapElement({ number, part = '' }) { await this.perform({ kind: 'tap', number, part }); }

  /** Taps the row, after scrolling to it where it is not on the screen. */
  async tapRow(row) {
    const wanted = (cell) => cell.type === 'Cell' && (Array.isArray(row)
      ? cell.attributes.section === row[0] && cell.attributes.row === row[1] : cell.identifier === row);
    for (let offset = -BARS; ; offset += SCREEN_HEIGHT / 2) {
      const table = await this.table();
      const cell = all(table, wanted)[0];
      if (cell) return this.tapElement(cell);
      if (offset > table.attributes.contentHeight) throw new Error(`no row ${row}`);
      await this.perform({ kind: 'scroll', number: table.number, amount: offset });
    }
  }

  async tapRole(role) {
    const buttons = all(await this.screen(),
      (element) => element.type === 'Button' && element.attributes?.role === role);
    await this.tapElement(buttons.at(-1));
  }

  async back() { await this.perform({ kind: 'back' }); }
}

/** One language: the root page from top to end, then each stop of the tour. */
class Photographer {
  constructor(page, language) {
    this.page = page;
    this.hand = new Hand(page);
    this.language = language;
  }

  async shoot(name) {
    await this.page.waitForTimeout(700); // until pages and sheets have come to rest
    await this.page.locator('.screen').screenshot({ path: join(output, `${name}--${this.language}.png`) });
  }

  async shootRootPage() {
    const table = await this.hand.table();
    const step = SCREEN_HEIGHT - BARS;
    for (let part = 0; part * step < table.attributes.contentHeight; part++) {
      await this.hand.perform({ kind: 'scroll', number: table.number, amount: part * step - BARS });
      await this.shoot(`root-${part + 1}`);
    }
  }

  async visit({ name, taps, button, modal, alert }) {
    for (const row of taps) await this.hand.tapRow(row);
    if (button) await this.hand.tapRole(button);
    await this.shoot(name);
    await this.leave({ depth: taps.length, modal, alert });
  }

  async leave({ depth, modal, alert }) {
    if (alert) await this.hand.tapRole(alert);
    if (modal) await this.hand.tapRole(await this.closesFromTheLeft() ? 'left' : 'right');
    const pages = modal || (alert && depth > 0) ? depth - 1 : depth;
    for (let page = 0; page < pages; page++) await this.hand.back();
  }

  async closesFromTheLeft() {
    const bar = all(await this.hand.screen(), (element) => element.type === 'NavigationBar').at(-1);
    return all(bar, (element) => element.attributes?.role === 'left').length > 0;
  }
}

async function photograph(browser, language) {
  const device = await mkdtemp(join(tmpdir(), 'zelvora-shots-'));
  const { phone, address } = await startPhone(device, language);
  try {
    const page = await browser.newPage({
      viewport: { width: 1280, height: 900 }, deviceScaleFactor: PIXELS_PER_POINT, reducedMotion: 'reduce',
    });
    await page.goto(address);
    await page.locator('.screen').waitFor();
    await page.mouse.click(5, 5); // as with a mouse: no marks of the keyboard's focus in the pictures
    const photographer = new Photographer(page, language);
    await photographer.shootRootPage();
    for (const stop of TOUR) await photographer.visit(stop);
    await page.close();
  } finally {
    phone.kill();
    await rm(device, { recursive: true, force: true });
  }
}

/** Puts the pictures of one page side by side. */
async function makeSheet(browser, name) {
  const page = await browser.newPage({ viewport: { width: 330 * languages.length, height: 600 } });
  await page.goto(pathToFileURL(resolve(output)).href);
  await page.setContent(`<style>body{margin:4px;white-space:nowrap}img{width:320px;margin:2px;border:1px solid #999}
    </style>` + languages.map((language) =>
    `<img src="${pathToFileURL(resolve(output, `${name}--${language}.png`)).href}" alt="${language}">`).join(''));
  await page.waitForLoadState('networkidle');
  await page.screenshot({ path: join(output, `sheet-${name}.png`), fullPage: true });
  await page.close();
}

const browser = await chromium.launch({ executablePath: '/usr/bin/chromium', args: ['--no-sandbox'] });
try {
  for (const language of languages) await photograph(browser, language);
  const names = (await readdir(output)).filter((file) => file.endsWith(`--${languages[0]}.png`));
  for (const file of names) await makeSheet(browser, file.split('--')[0]);
} finally {
  await browser.close();
}
