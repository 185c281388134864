import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
let keys;
before(async () => {
  simulator = await Simulator.start();
  person = await Person.at(simulator);
  keys = person.page.keyboard;
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const focused = () => person.page.evaluate(() => {
  const element = document.activeElement;
  return element.getAttribute('aria-label') || element.innerText || element.placeholder || element.tagName;
});

// Goes on with Tab, or back with Shift and Tab, until something with this name has the focus.
const go = async (key, name) => {
  for (let stops = 0; stops < 40; stops += 1) {
    await keys.press(key);
    if ((await focused()).trim().startsWith(name))
      return;
  }
  assert.fail(`${key} does not lead to "${name}"`);
};
const tabTo = (name) => go('Tab', name);
const tabBackTo = (name) => go('Shift+Tab', name);

test('a switch is reached with Tab and switched with Space', async () => {
  await tabTo('Enable Zelvora');
  await keys.press('Space');
  await person.screen.locator('[role=switch][aria-checked=false]').first().waitFor();
  assert.equal(await focused(), 'Enable Zelvora');
});

test('the focus is visible', async () => {
  const outline = await person.page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
  assert.notEqual(outline, 'none');
});

test('a page is opened with Return, and the way back ends on the row that opened it', async () => {
  await tabTo('Keypad');
  await keys.press('Enter');
  await person.title('Keypad');
  await tabTo('Zelvora');
  await keys.press('Enter');
  await person.title('Zelvora');
  await person.page.locator('button:focus', { hasText: 'Keypad' }).waitFor();
});

test('a sheet takes the focus, keeps it and gives it back', async () => {
  await tabBackTo('Tools');
  await keys.press('Enter');
  await person.screen.getByRole('dialog').waitFor();
  assert.equal(await focused(), 'Cancel');
  await keys.press('Tab');
  assert.equal(await focused(), 'Respring');
  await keys.press('Shift+Tab');
  assert.equal(await focused(), 'Cancel');
  await keys.press('Escape');
  await person.screen.getByRole('dialog').waitFor({ state: 'detached' });
  assert.equal(await focused(), 'Tools');
});

test('a number is added and deleted without a pointer', async () => {
  await person.scrollTo('Blacklist');
  await person.row('Blacklist').getByRole('button').focus();
  await keys.press('Enter');
  await person.title('Blacklist');
  await tabTo('Add Number');
  await keys.press('Enter');
  await person.title('Add Number');
  await person.focuses('[placeholder=Name]');
  await keys.type('Eve');
  await keys.press('Tab');
  await keys.type('42');
  await tabBackTo('Save');
  await keys.press('Enter');
  await person.title('Blacklist');
  await person.sees('Eve');
  await tabTo('Eve');
  await keys.press('Delete');
  await person.focuses('.delete-button');
  await keys.press('Enter');
  await person.row('Eve').waitFor({ state: 'detached' });
});
