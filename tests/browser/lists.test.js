import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start();
  person = await Person.at(simulator);
  await person.tap('Blacklist');
  await person.title('Blacklist');
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const add = async (name, number) => {
  await person.tap('Add Number');
  await person.title('Add Number');
  await person.page.keyboard.type(name);
  await person.front.getByPlaceholder('Phone Number').click();
  await person.page.keyboard.type(number);
  await person.pressBar('Save');
  await person.title('Blacklist');
};

test('a number is added by hand and written to the list', async () => {
  await add('Ann Example', '2025550143');
  await person.sees('Ann Example');
  await person.file('zelvora.black.plist', '2025550143', 'Ann Example');
  await person.card('Darwin notifications').getByText('ZVBlacklistChanged').first().waitFor();
});

test('the drawn keyboard types where the pointer presses', async () => {
  await person.tap('Add Number');
  await person.title('Add Number');
  const key = (face) => person.page.locator('.keyboard .key').filter({ hasText: new RegExp(`^${face}`) }).first();
  await person.page.locator('.keyboard .key-shift').click();
  await key('B').click();
  await key('o').click();
  await key('b').click();
  await person.front.getByPlaceholder('Phone Number').click();
  await person.page.locator('.keyboard.pad').waitFor();
  for (const digit of '5551')
    await key(digit).click();
  await person.page.locator('.keyboard .key-delete').click();
  await person.pressBar('Save');
  await person.title('Blacklist');
  await person.file('zelvora.black.plist', '555', 'Bob');
});

test('an entry is opened, changed and stays in its place', async () => {
  await person.tap('Bob');
  await person.title('Edit Number');
  const name = person.front.getByPlaceholder('Name');
  assert.equal(await name.inputValue(), 'Bob');
  await name.click();
  await person.page.keyboard.type('by');
  await person.pressBar('Save');
  await person.title('Blacklist');
  await person.sees('Bobby');
});

test('cancelling the editor changes nothing', async () => {
  await person.tap('Bobby');
  await person.page.keyboard.type('xyz');
  await person.pressBar('Cancel');
  await person.title('Blacklist');
  await person.sees('Bobby');
});

test('a swipe opens the Delete button, and a click elsewhere only closes it', async () => {
  await person.swipeAway('Bobby');
  await person.front.locator('.delete-button').waitFor();
  await person.row('Add Number').click();
  await person.front.locator('.delete-button').waitFor({ state: 'detached' });
  await person.title('Blacklist');
});

test('a swiped entry is deleted', async () => {
  await person.swipeAway('Bobby');
  await person.press('Delete');
  await person.row('Bobby').waitFor({ state: 'detached' });
  const removed = person.card('Preference and list files').locator('.entry-removed', { hasText: '555' });
  await removed.waitFor();
});

test('in editing mode the minus opens the Delete button', async () => {
  await person.pressBar('Edit');
  await person.press('Delete Ann Example');
  await person.press('Delete');
  await person.row('Ann Example').waitFor({ state: 'detached' });
  await person.pressBar('Done');
  await person.front.locator('.bar').getByRole('button', { name: 'Edit' }).waitFor();
});

test('the focus follows where the phone puts it', async () => {
  await person.tap('Add Number');
  await person.focuses('[placeholder=Name]');
  await simulator.perform({ kind: 'tap', element: { type: 'TextField', label: 'Phone Number' } });
  await person.focuses('[placeholder="Phone Number"]');
  await person.page.locator('.keyboard.pad').waitFor();
  await person.page.keyboard.type('42');
  await person.settled();
  assert.equal(await person.front.getByPlaceholder('Phone Number').inputValue(), '42');
  await person.pressBar('Cancel');
  await person.title('Blacklist');
});

test('what is typed fast arrives whole', async () => {
  const name = 'The quick brown fox jumps';
  await person.tap('Add Number');
  await person.title('Add Number');
  await person.page.keyboard.type(name, { delay: 0 });
  await person.front.getByPlaceholder('Phone Number').click();
  assert.equal(await person.front.getByPlaceholder('Name').inputValue(), name);
  await person.page.keyboard.type('1234567890', { delay: 0 });
  await person.pressBar('Save');
  await person.title('Blacklist');
  await person.file('zelvora.black.plist', '1234567890', 'The quick brown fox');
});

test('the file that has changed last is open, and a person may open and close any', async () => {
  await person.pressBar('Zelvora');
  await person.title('Zelvora');
  const file = (name) => person.card('Preference and list files').locator('details', { hasText: name });
  const isOpen = (name) => file(name).evaluate(({ open }) => open);
  await person.scrollTo('Vibrate on Connect');
  await person.screen.getByRole('switch', { name: 'Vibrate on Connect' }).click();
  await file('zelvora.plist').locator('tr').first().waitFor({ state: 'visible' });
  assert.equal(await isOpen('zelvora.black.plist'), false);
  await file('zelvora.black.plist').locator('summary').click();
  assert.equal(await isOpen('zelvora.black.plist'), true);
  await file('zelvora.plist').locator('summary').press('Enter');
  assert.equal(await isOpen('zelvora.plist'), false);
});
