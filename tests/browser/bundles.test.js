import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start('--bundle', process.env.ZV_FIXTURE_BUNDLES
    ?? new URL('../../build/host/fixture-bundles', import.meta.url).pathname);
  person = await Person.at(simulator);
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

test('a folder of bundles is shown as the list of Settings', async () => {
  await person.title('Settings');
  const rows = await person.rows();
  assert.deepEqual(rows.map((row) => row.trim()), ['Jukebox', 'LateTrain', 'Weathercock', 'Wreck']);
});

test('a row opens its bundle', async () => {
  await person.tap('Jukebox');
  await person.title('Jukebox');
  await person.sees('Shuffle');
});

test('segments, text fields and choices of another bundle work', async () => {
  await person.scrollTo('Loading');
  const segment = person.front.locator('.segment', { hasText: 'High' });
  await segment.click();
  await person.front.locator('.segment[aria-pressed=true]', { hasText: 'High' }).waitFor();
  await person.tap('Account');
  await person.title('Account');
  await person.front.getByRole('textbox', { name: 'Name', exact: true }).fill('Ann');
  await person.page.keyboard.press('Enter');
  await person.file('org.example.jukebox.account.plist', 'name', 'Ann');
  await person.pressBar('Jukebox');
});

test('a text of several lines is written, and stored when the editing ends', async () => {
  await person.title('Jukebox');
  await person.tap('Account');
  await person.title('Account');
  await person.front.locator('.table').evaluate((table) => { table.scrollTop = table.scrollHeight; });
  const text = person.front.locator('textarea');
  await text.click();
  await person.page.keyboard.press('End');
  await person.page.keyboard.type(' and');
  await person.page.keyboard.press('Enter');
  await person.page.keyboard.type('a third');
  await person.settled();
  assert.match(await text.inputValue(), /^Two lines.* and\na third/s);
  await person.pressBar('Jukebox');
  await person.file('org.example.jukebox.account.plist', 'notes', 'a third');
});

test('a bundle that cannot be loaded says so', async () => {
  await person.title('Jukebox');
  await person.pressBar('Settings');
  await person.title('Settings');
  await person.tap('Wreck');
  await person.front.locator('.section-footer').first().waitFor();
});

test('the inspector opens any of them', async () => {
  await person.page.getByLabel('Device').getByLabel('Bundle').selectOption('Weathercock');
  await person.title('Weathercock');
});
