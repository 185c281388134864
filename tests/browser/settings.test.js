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

test('the settings page of the bundle is in front', async () => {
  await person.title('Zelvora');
  await person.sees('Enable Zelvora');
  await person.sees('DIALER');
});

test('a switch that is switched is stored, and the change is announced once, three seconds later', async () => {
  const toggle = person.screen.getByRole('switch', { name: 'Enable Zelvora' });
  assert.equal(await toggle.getAttribute('aria-checked'), 'true');
  await toggle.click();
  await person.screen.locator('[role=switch][aria-checked=false]').first().waitFor();
  const countdown = person.card('Darwin notifications').locator('.countdown');
  await countdown.getByText('ZVSettingsChanged').waitFor();
  const entry = await person.file('zelvora.plist', 'Enabled', 'false');
  assert.match(await entry.getAttribute('class'), /entry-(added|changed)/);
  await countdown.waitFor({ state: 'detached' });
  const posted = person.card('Darwin notifications').locator('.log li');
  assert.equal(await posted.count(), 1);
  assert.match(await posted.innerText(), /ZVSettingsChanged/);
});

test('two changes within three seconds are announced once', async () => {
  const posted = person.card('Darwin notifications').locator('.log li');
  const earlier = await posted.count();
  const toggle = person.screen.getByRole('switch', { name: 'Enable Zelvora' });
  await toggle.click();
  await toggle.click();
  await person.card('Darwin notifications').locator('.countdown').waitFor();
  await person.card('Darwin notifications').locator('.countdown').waitFor({ state: 'detached' });
  assert.equal(await posted.count(), earlier + 1);
});

test('a choice is made on a page of its own and shows on the row', async () => {
  await person.tap('Duration');
  await person.title('Duration');
  const choice = person.front.getByRole('listitem').nth(3);
  const text = (await choice.locator('.cell-text').innerText()).trim();
  await choice.getByRole('button').click();
  await person.front.locator('[aria-current=true]', { hasText: text }).waitFor();
  await person.pressBar('Zelvora');
  await person.title('Zelvora');
  await person.row('Duration').getByText(text, { exact: true }).waitFor();
});

test('a slider is dragged and its value stored', async () => {
  await person.scrollTo('Test Vibration');
  const slider = person.screen.getByRole('slider');
  await slider.focus();
  const before = Number(await slider.inputValue());
  await person.page.keyboard.press('ArrowRight');
  await person.file('zelvora.plist', 'ConnectedVibrateIntensity', '0.');
  assert.ok(Number(await slider.inputValue()) > before);
});

test('the vibration test draws its pattern', async () => {
  await person.tap('Test Vibration');
  const card = person.card('Vibration');
  await card.locator('.phase-on', { hasText: '500' }).waitFor();
  assert.match(await card.innerText(), /500 ms, strength 0.3/);
});

test('a text row low on the page is written above the keyboard', async () => {
  await person.scrollTo('Keypad');
  await person.tap('Keypad');
  await person.title('Keypad');
  await person.scrollTo('Prefix Number');
  const field = person.front.getByPlaceholder('Optional');
  await field.click();
  await person.page.locator('.keyboard.shown').waitFor();
  await person.settled();
  const [box, screen] = [await field.boundingBox(), await person.screen.boundingBox()];
  assert.ok(box.y + box.height <= screen.y + screen.height - 216 + 1, 'the field is above the keyboard');
  await person.page.keyboard.type('0045');
  assert.equal(await field.inputValue(), '0045');
  await person.pressBar('Zelvora'); // a number pad has no Return key
  await person.title('Zelvora');
  await person.file('zelvora.plist', 'DialingPrefix', '0045');
});

test('a list that was scrolled down by hand scrolls up again', async () => {
  const table = person.front.locator('.table');
  for (const offset of [0, 1200, 0]) {
    await table.evaluate((element, top) => { element.scrollTop = top; }, offset);
    await person.settled();
  }
  await person.sees('Enable Zelvora');
});

test('the support address is opened and told', async () => {
  await person.tap('Email Us');
  await person.card('Activity').getByText(/^mailto:/).waitFor();
});

test('the tools button asks before it restarts the home screen', async () => {
  await person.pressBar('Tools');
  const sheet = person.screen.getByRole('dialog');
  await sheet.waitFor();
  await person.page.keyboard.press('Escape');
  await sheet.waitFor({ state: 'detached' });
  await person.pressBar('Tools');
  await sheet.getByRole('button', { name: 'Respring' }).click();
  await person.card('Activity').getByText('killall SpringBoard').waitFor();
  await sheet.waitFor({ state: 'detached' });
});

test('beside a sheet is outside: a click there cancels it', async () => {
  await person.pressBar('Tools');
  await person.screen.getByRole('dialog').waitFor();
  await person.screen.click({ position: { x: 160, y: 200 } });
  await person.screen.getByRole('dialog').waitFor({ state: 'detached' });
});
