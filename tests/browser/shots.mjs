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

// What a person does to see each page, from the root page on: taps rows, by identifier or by section and row, then what
// `then` says. A page that is longer than the screen is also shown at its end where `whole` says so.
const TOUR = [
  { name: 'keypad', taps: ['Keypad'], whole: true },
  { name: 'key-tones', taps: ['Keypad', 'KeypadTones'] },
  { name: 'recents', taps: ['Recents'], whole: true },
  { name: 'recents-action', taps: ['Recents', 'RecentsTapAction'] },
  { name: 'filters', taps: ['Filters'], whole: true },
  { name: 'filter', taps: ['Filters', 'FilterMode'] },
  { name: 'filtered', taps: ['Filters', 'FilterAction'] },
  { name: 'area-database', taps: ['AreaDatabase'] },
  { name: 'code-table', taps: ['T9Database'] },
  { name: 'area-list', taps: ['AreaList'] },
  { name: 'area-list-editing', taps: ['AreaList'], then: async (hand) => {
    await hand.tapRole('right');
    await hand.tapRole('minus');
  } },
  { name: 'area-list-swiped', taps: ['AreaList'], then: (hand) => hand.swipeRow([1, 1]) },
  { name: 'area-new', taps: ['AreaList', [0, 0]] },
  { name: 'area-editor', taps: ['AreaList', [1, 0]] },
  { name: 'code-list', taps: ['T9List'] },
  { name: 'code-new', taps: ['T9List', [0, 0]] },
  { name: 'code-editor', taps: ['T9List', [1, 0]] },
  { name: 'blacklist', taps: ['Blacklist'] },
  { name: 'number-new', taps: ['Blacklist', [0, 0]] },
  { name: 'contacts', taps: ['Blacklist', [0, 1], [0, 0], [0, 3], [0, 4]] },
  { name: 'call-history', taps: ['Blacklist', [0, 2], [0, 1], [0, 2]] },
  { name: 'blacklist-filled', taps: ['Blacklist'] },
  { name: 'blacklist-editing', taps: ['Blacklist'], then: (hand) => hand.tapRole('right') },
  { name: 'number-editor', taps: ['Blacklist', [1, 0]], then: (hand) => hand.tapPart('TextField', -1) },
  { name: 'counts', taps: ['Blacklist'], then: (hand) => hand.home() },
  { name: 'history-limit', taps: ['CallHistoryLimit'], whole: true },
  { name: 'question', taps: ['CallHistoryLimit', [0, 1]] },
  { name: 'success', taps: ['CallHistoryLimit', [0, 1]], then: (hand) => hand.tapRole('default') },
  { name: 'call-time', taps: ['CallTime'] },
  { name: 'call-time-editor', taps: ['CallTime', [0, 0]] },
  { name: 'people', taps: ['MyInfo'], whole: true },
  { name: 'people-search', taps: ['MyInfo'], then: async (hand) => {
    await hand.tapPart('SearchField', 0);
    await hand.perform({ kind: 'type', text: 'ma' });
  } },
  { name: 'people-not-found', taps: ['MyInfo'], then: async (hand) => {
    await hand.tapPart('SearchField', 0);
    await hand.perform({ kind: 'type', text: 'xyzzy' });
  } },
  { name: 'duration', taps: ['ConnectedVibrateTotalDuration'] },
  { name: 'vibration', taps: ['ConnectedVibrateOnDuration'] },
  { name: 'pause', taps: ['ConnectedVibrateOffDuration'] },
  { name: 'tools', taps: [], then: (hand) => hand.tapRole('right') },
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

const isPopup = ({ type }) => type === 'Alert' || type === 'Sheet';
const hasRole = (...roles) => (element) => element.type === 'Button' && roles.includes(element.attributes?.role);

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

  tapElement({ number, part = '' }) { return this.perform({ kind: 'tap', number, part }); }

  scroll({ number }, amount) { return this.perform({ kind: 'scroll', number, amount }); }

  /** The row, after scrolling to it where it is not on the screen. */
  async row(row) {
    const wanted = (cell) => cell.type === 'Cell' && (Array.isArray(row)
      ? cell.attributes.section === row[0] && cell.attributes.row === row[1] : cell.identifier === row);
    for (let offset = -BARS; ; offset += SCREEN_HEIGHT / 2) {
      const table = await this.table();
      const cell = all(table, wanted)[0];
      if (cell) return cell;
      if (offset > table.attributes.contentHeight) throw new Error(`no row ${row}`);
      await this.scroll(table, offset);
    }
  }

  async tapRow(row) { await this.tapElement(await this.row(row)); }

  async swipeRow(row) { await this.perform({ kind: 'swipe', number: (await this.row(row)).number }); }

  async tapPart(type, place) {
    await this.tapElement(all(await this.screen(), (element) => element.type === type).at(place));
  }

  /** The last of those with the role, which is the one in front; of rows the first. */
  async tapRole(role) {
    const buttons = all(await this.screen(), hasRole(role));
    await this.tapElement(role === 'minus' ? buttons[0] : buttons.at(-1));
  }

  async atHome() {
    const { attributes: { page } } = await this.screen();
    this.root ??= page;
    return page === this.root;
  }

  /** Cancels what is open and goes back until the root page is in front. */
  async home() {
    for (;;) {
      const screen = await this.screen();
      const popup = all(screen, isPopup)[0];
      if (popup)
        await this.tapElement(all(popup, hasRole('cancel'))[0]);
      else if (await this.atHome())
        return;
      else
        await this.leavePage(all(screen, ({ type }) => type === 'NavigationBar').at(-1));
    }
  }

  async leavePage(bar) {
    const [way] = ['back', 'left', 'right'].flatMap((role) => all(bar, hasRole(role)));
    await (way.attributes.role === 'back' ? this.perform({ kind: 'back' }) : this.tapElement(way));
  }
}

/** One language: the root page from top to end, then each stop of the tour. */
class Photographer {
  constructor(page, language) {
    this.page = page;
    this.hand = new Hand(page);
    this.language = language;
  }

  async shoot(name) {
    await this.page.waitForTimeout(250); // until the page has heard of it and its pictures are there
    await this.page.locator('.screen').screenshot({ path: join(output, `${name}--${this.language}.png`) });
  }

  async shootRootPage() {
    await this.hand.atHome();
    const table = await this.hand.table();
    const step = SCREEN_HEIGHT - BARS;
    for (let part = 0; part * step < table.attributes.contentHeight; part++) {
      await this.hand.scroll(table, part * step - BARS);
      await this.shoot(`root-${part + 1}`);
    }
  }

  async visit({ name, taps, then, whole }) {
    for (const row of taps) await this.hand.tapRow(row);
    await then?.(this.hand);
    await this.shoot(name);
    const table = await this.hand.table();
    const hidden = table.attributes.contentHeight - SCREEN_HEIGHT;
    if (whole && hidden > -BARS) {
      await this.hand.scroll(table, hidden);
      await this.shoot(`${name}-end`);
    }
    await this.hand.home();
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
    // As with a mouse, and with the focus elsewhere: the pictures show no marks of the keyboard's focus.
    await page.locator('.card-database .tab').first().click();
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
