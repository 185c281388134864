import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start('--contacts', '400', '--calls', '60');
  person = await Person.at(simulator);
  await person.tap('Blacklist');
  await person.title('Blacklist');
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const list = async () => {
  const { files } = await simulator.get('/api/files');
  return files.find(({ path }) => path.endsWith('zelvora.black.plist'))?.entries ?? [];
};

const mark = (row) => row.locator('.cell-icon img').getAttribute('src');

test('contacts are chosen one by one, and each choice is written at once', async () => {
  await person.tap('Select Contacts');
  await person.title('Select Contacts');
  const rows = person.front.getByRole('listitem');
  const unchecked = await mark(rows.nth(1));
  await rows.nth(1).getByRole('button').click();
  await rows.nth(2).getByRole('button').click();
  await person.settled();
  assert.notEqual(await mark(rows.nth(1)), unchecked);
  assert.equal((await list()).length, 2);
});

test('a chosen contact is taken out again', async () => {
  const rows = person.front.getByRole('listitem');
  await rows.nth(2).getByRole('button').click();
  await person.settled();
  assert.equal((await list()).length, 1);
});

test('a long list shows the rows that one scrolls to, and holds no others', async () => {
  const table = person.front.locator('.table');
  const seen = new Set();
  const end = await table.evaluate((element) => element.scrollHeight);
  for (let offset = 0; offset <= end; offset += 400) {
    await table.evaluate((element, top) => { element.scrollTop = top; }, offset);
    await person.settled();
    const names = await person.rows();
    assert.ok(names.length < 40, `${names.length} rows are there at once`);
    names.forEach((name) => seen.add(name));
  }
  assert.ok(seen.size > 350, `${seen.size} rows were seen`);
});

test('Done closes the picker and announces the change', async () => {
  await person.pressBar('Done');
  await person.title('Blacklist');
  await person.card('Darwin notifications').getByText('ZVBlacklistChanged').first().waitFor();
  assert.equal((await person.rows()).length, 4);
});

test('recent calls can be chosen too', async () => {
  await person.tap('Select Call History');
  await person.title('Select Call History');
  await person.front.getByRole('listitem').first().getByRole('button').click();
  await person.pressBar('Done');
  await person.title('Blacklist');
  assert.equal((await list()).length, 2);
});

test('a chosen number is checked when the picker opens again', async () => {
  await person.tap('Select Call History');
  await person.title('Select Call History');
  const rows = person.front.getByRole('listitem');
  assert.notEqual(await mark(rows.nth(0)), await mark(rows.nth(1)));
  await person.pressBar('Done');
});

test('a page after a picker has letters of its own', async () => {
  await person.title('Blacklist');
  const weights = await person.front.locator('.cell-text').evaluateAll((texts) =>
    texts.map((text) => getComputedStyle(text).fontWeight));
  assert.deepEqual([...new Set(weights)], ['400']);
});

test('the own card is picked from the contacts', async () => {
  await person.title('Blacklist');
  await person.pressBar('Zelvora');
  await person.tap('My Info');
  await person.front.getByRole('listitem').nth(3).getByRole('button').click();
  await person.title('Zelvora');
});
