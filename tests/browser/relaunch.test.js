import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start();
  person = await Person.at(simulator);
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const choose = (label, value) =>
  person.page.getByLabel('Device').getByLabel(label, { exact: true }).selectOption(value);

test('another language starts the phone anew, and the page follows', async () => {
  await choose('Language', 'zh-Hans');
  await person.sees('启用 Zelvora');
  await person.page.locator('.phone[lang=zh-Hans]').waitFor();
});

test('another screen is shown in its size', async () => {
  await choose('Language', 'en');
  await person.sees('Enable Zelvora');
  await choose('Screen', '414x736');
  await person.page.locator('.screen[style*="414px"]').waitFor();
});

test('another system version chooses the other call history', async () => {
  await choose('iOS', '7.1.2');
  await person.page.locator('.phone.ios7').waitFor();
  assert.equal((await simulator.get('/api/database')).form, 'keyValue');
});

test('the page says so when the simulator has gone', async () => {
  await simulator.end();
  await person.page.getByText('The simulator has stopped.').waitFor();
});
