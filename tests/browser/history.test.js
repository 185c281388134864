import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start('--calls', '30');
  person = await Person.at(simulator);
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const history = () => person.card('Call history');
const fact = (name) => history().locator('dl > div', { hasText: name }).locator('dd');
const alert = () => person.screen.getByRole('alertdialog');

const chooseLimit = async (calls) => {
  await person.tap('History Limit');
  await person.title('History Limit');
  await person.tap(`${calls} Calls`);
};

const alertSays = (text) => alert().getByText(text, { exact: true }).waitFor();

test('a cancelled limit changes nothing', async () => {
  await chooseLimit(200);
  await alertSays('Are you sure you want to continue?');
  await person.page.keyboard.press('Escape');
  await alert().waitFor({ state: 'detached' });
  assert.equal(await fact('Keeping trigger').innerText(), 'none');
  await person.pressBar('Zelvora');
  await person.title('Zelvora');
});

test('a confirmed limit installs the trigger and tells of its success', async () => {
  await chooseLimit('2,000');
  await person.press('OK');
  await alertSays('Succeed!');
  await fact('Keeping trigger').getByText('installed').waitFor();
  await fact('Limit in force').getByText('2000').waitFor();
  await person.press('OK');
  await alert().waitFor({ state: 'detached' });
  await person.pressBar('Zelvora');
  await person.row('History Limit').getByText('2,000 Calls').waitFor();
});

test('a call that the system deletes is kept', async () => {
  await history().getByRole('button', { name: '30 calls' }).waitFor();
  await person.card('Play the phone').getByRole('button', { name: 'Delete oldest call' }).click();
  await history().getByRole('button', { name: '1 kept after deletion' }).click();
  await history().getByRole('list', { name: 'Kept calls' }).getByRole('listitem').waitFor();
});

test('a call that comes in is counted', async () => {
  const play = person.card('Play the phone');
  await play.getByLabel('Number').fill('+1 202 555 0177');
  await play.getByRole('button', { name: 'Add call' }).click();
  await history().getByRole('button', { name: '30 calls' }).click();
  await history().getByText('+1 202 555 0177').waitFor();
});

test('a limit of 100 ends it all without a question', async () => {
  await chooseLimit(100);
  await fact('Keeping trigger').getByText('none').waitFor();
  assert.equal(await alert().count(), 0);
  await person.pressBar('Zelvora');
});

test('the time that calls are kept is changed in minutes', async () => {
  await person.tap('Keep Calls');
  await person.front.getByRole('listitem').first().getByRole('button').click();
  await person.title('Unit: Minutes');
  const field = person.front.getByRole('textbox');
  await field.fill('90');
  await person.pressBar('Save');
  await person.sees('1 hours 30 minutes');
  await fact('Lifetime').getByText('1 h 30 min').waitFor();
  await person.pressBar('Zelvora');
});

test('on an older system the tool does the work, and its failure is told', async () => {
  const device = person.page.getByLabel('Device');
  await device.getByLabel('iOS', { exact: true }).selectOption('7.1.2');
  await person.page.locator('.phone.ios7').waitFor();
  await chooseLimit(300);
  await person.press('OK');
  await alertSays('Succeed!');
  await person.press('OK');
  await alert().waitFor({ state: 'detached' });
  await person.card('Activity').getByText('/Library/Zelvora/zvtool -i 300').waitFor();
  await device.getByLabel('zvtool').selectOption('fails');
  await person.tap('400 Calls');
  await person.press('OK');
  await alertSays('Failed!');
  await fact('Limit in force').getByText('300').waitFor();
  await person.press('OK');
});
