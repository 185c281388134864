// A person at the page: looks, clicks, types, drags. Words are those that the page shows.
import assert from 'node:assert/strict';
import { chromium } from 'playwright-core';

const flags = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];

export class Person {
  static async at(simulator, { reducedMotion = 'reduce', ...options } = {}) {
    const person = new Person();
    person.browser = await chromium.launch({ executablePath: process.env.ZV_CHROMIUM ?? '/usr/bin/chromium', args: flags });
    person.simulator = simulator;
    try {
      await person.openPage({ reducedMotion, ...options });
    } catch (error) {
      await person.browser.close();
      throw error;
    }
    return person;
  }

  async openPage(options) {
    const context = await this.browser.newContext({ viewport: { width: 1400, height: 900 }, ...options });
    this.page = await context.newPage();
    this.page.setDefaultTimeout(20_000);
    this.faults = [];
    this.strangers = [];
    this.page.on('pageerror', (error) => this.faults.push(error.message));
    this.page.on('console', (message) => message.text().includes('Content Security Policy') && this.faults.push(message.text()));
    this.page.on('request', (request) => request.url().startsWith(this.simulator.origin) || this.strangers.push(request.url()));
    await this.page.goto(this.simulator.address);
    await this.page.locator('.bar-title').waitFor();
  }

  async leave() {
    await this.browser.close();
    assert.deepEqual(this.faults, [], 'the page has no faults');
    assert.deepEqual(this.strangers, [], 'the page asks nobody but the simulator');
  }

  get screen() {
    return this.page.locator('.screen');
  }

  // The page in front is the one that is not leaving.
  get front() {
    return this.page.locator('.page-layer:not(.leaving)');
  }

  row(text) {
    return this.front.getByRole('listitem').filter({ has: this.page.getByText(text, { exact: true }) });
  }

  // Rows that are far down are not there before one scrolls to them, as on the phone.
  async scrollTo(text) {
    const table = this.front.locator('.table');
    for (let offset = 0; await this.row(text).count() === 0; offset += 300) {
      const end = await table.evaluate((element, top) => {
        element.scrollTop = top;
        return top > element.scrollHeight;
      }, offset);
      assert.ok(!end, `there is no row "${text}"`);
      await this.settled();
    }
    await this.row(text).first().scrollIntoViewIfNeeded();
    await this.settled();
  }

  // All gestures of the page have been carried out and shown.
  async settled() {
    await this.page.evaluate(() => new Promise((done) => { requestAnimationFrame(() => setTimeout(done, 0)); }));
    await this.page.locator('html:not([data-busy]):not([data-scrolling])').waitFor();
  }

  async tap(text) {
    await this.scrollTo(text);
    const row = this.row(text).first();
    const button = row.locator('button.cell-main');
    await (await button.count() ? button : row).click();
  }

  // `selector` has got the focus.
  async focuses(selector) {
    await this.page.locator(`${selector}:focus`).waitFor();
  }

  async press(name) {
    await this.screen.getByRole('button', { name, exact: true }).and(this.page.locator(':not([inert] *)')).first().click();
  }

  async pressBar(name) {
    await this.front.locator('.bar').getByRole('button', { name, exact: true }).click();
  }

  async title(text) {
    await this.front.locator('.bar-title', { hasText: new RegExp(`^${text}$`) }).waitFor();
  }

  async sees(text) {
    await this.front.getByText(text, { exact: true }).first().waitFor();
  }

  async rows() {
    await this.settled();
    return this.front.getByRole('listitem').allInnerTexts();
  }

  async swipeAway(text) {
    const box = await this.row(text).boundingBox();
    const y = box.y + box.height / 2;
    await this.page.mouse.move(box.x + box.width - 30, y);
    await this.page.mouse.down();
    await this.page.mouse.move(box.x + box.width - 150, y, { steps: 8 });
    await this.page.mouse.up();
  }

  // Texts of the phone that do not fit their place, those in rows behind the screen's edges left out.
  clippedTexts() {
    return this.front.evaluate((page) => [...page.querySelectorAll(
      '.bar-title, .bar-button, .bar-button span, .cell-text, .cell-detail, .segment, .section-header, .section-footer')]
      .filter((text) => !text.closest('.remembered') &&
        (text.scrollWidth > text.clientWidth + 1 || (text.clientHeight && text.scrollHeight > text.clientHeight + 3)))
      .map((text) => text.innerText));
  }

  card(title) {
    return this.page.locator('.card').filter({ has: this.page.getByRole('heading', { name: new RegExp(`^${title}`) }) });
  }

  async file(name, key, value) {
    const entry = this.card('Preference and list files').locator('details', { hasText: name })
      .locator('tr', { has: this.page.locator('th', { hasText: key }) });
    await entry.locator('td', { hasText: value }).waitFor({ state: 'attached' });
    return entry;
  }
}
