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

test('the page says so when another simulator has taken its place', async () => {
  await simulator.launch(['--port', new URL(simulator.origin).port]);
  await person.page.getByText('Open the address that it has printed.').waitFor();
});

test('with the new address the page goes on where the phone is', async () => {
  await person.page.goto(simulator.address);
  await person.title('Zelvora');
  await person.page.getByText('Open the address').waitFor({ state: 'detached' });
});

test('two simulators are shown beside one another', async () => {
  const other = await Simulator.start('--language', 'de');
  const page = await person.page.context().newPage();
  await page.goto(other.address);
  await page.getByText('Zelvora aktivieren').waitFor();
  await person.page.reload();
  await person.sees('Enable Zelvora');
  await page.close();
  await other.stopAndRemove();
});
