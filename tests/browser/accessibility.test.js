import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import { createRequire } from 'node:module';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

// The page lets no script in but its own, so axe is handed over as text that the debugger evaluates.
const axe = await readFile(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

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

// The phone's own colours are the platform's, and iOS 8 has less contrast than a web page should. These letters are as
// they are on the phone, for the sake of looking like it; all others must be readable.
const platformColors = {
  // Tint, danger, values, UIColor's gray, headers and footers, placeholders.
  onLight: ['#007aff', '#ff3b30', '#8e8e93', '#808080', '#6d6d72', '#c7c7cd'],
  onColor: ['#ffffff'], // the chosen segment, Delete buttons
};

const isLight = (color) => color.slice(1).match(/../g).every((part) => parseInt(part, 16) >= 0xd9);

const hasPlatformColors = ({ any: [{ data }] }) =>
  platformColors[isLight(data.bgColor) ? 'onLight' : 'onColor'].includes(data.fgColor);

const violations = async (part) => {
  await person.settled();
  if (!await person.page.evaluate(() => Boolean(window.axe)))
    await person.page.evaluate(axe);
  const { violations: found } = await person.page.evaluate((selector) =>
    window.axe.run(selector, { resultTypes: ['violations'] }), part);
  return found.flatMap(({ id, impact, nodes }) => nodes
    .filter((node) => id !== 'color-contrast' || !hasPlatformColors(node))
    .map(({ target, any }) => `${impact} ${id}: ${target} ${JSON.stringify(any[0]?.data ?? '')}`));
};

// The inspector stays as it is while the phone goes from page to page.
const isAccessible = async () => assert.deepEqual(await violations('.phone'), []);
const isWhollyAccessible = async () => assert.deepEqual(await violations('html'), []);

test('the settings page', isWhollyAccessible);

test('the inspector, its contrast included', async () => {
  await person.page.evaluate(axe);
  const { violations: found } = await person.page.evaluate(() => window.axe.run('.inspector'));
  assert.deepEqual(found.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(' ')}`), []);
});

test('a list of choices', async () => {
  await person.tap('Duration');
  await person.title('Duration');
  await isAccessible();
  await person.pressBar('Zelvora');
});

test('a sheet', async () => {
  await person.title('Zelvora');
  await person.pressBar('Tools');
  await person.screen.getByRole('dialog').waitFor();
  await isAccessible();
  await person.press('Cancel');
});

test('a confirmation', async () => {
  await person.tap('History Limit');
  await person.title('History Limit');
  await person.tap('200 Calls');
  await person.screen.getByRole('alertdialog').waitFor();
  await isAccessible();
  await person.press('Cancel');
  await person.pressBar('Zelvora');
});

test('an editor with its keyboard', async () => {
  await person.tap('Blacklist');
  await person.tap('Add Number');
  await person.title('Add Number');
  await person.page.keyboard.type('Ann');
  await isAccessible();
  await person.front.getByPlaceholder('Phone Number').click();
  await person.page.keyboard.type('123');
  await person.pressBar('Save');
  await person.title('Blacklist');
});

test('a list that is being edited', async () => {
  await person.pressBar('Edit');
  await isAccessible();
  await person.press('Delete Ann');
  await isAccessible();
});

test('the contacts with their index', async () => {
  await person.pressBar('Done');
  await person.pressBar('Zelvora');
  await person.title('Zelvora');
  await person.tap('My Info');
  await person.title('All Contacts');
  await isAccessible();
  await person.pressBar('Cancel');
  await person.title('Zelvora');
});

const fits = async () => {
  const [wide, room] = await person.page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
  assert.ok(wide <= room, `the page is ${wide} wide in a window of ${room}`);
  const phone = await person.page.locator('.phone').boundingBox();
  const { width, height } = person.page.viewportSize();
  assert.ok(phone.x >= 0 && phone.x + phone.width <= width, 'the phone is as narrow as the window');
  assert.ok(phone.height <= height, 'the phone is as low as the window');
};

test('a narrow window shows the phone and the inspector below it', async () => {
  await person.page.setViewportSize({ width: 360, height: 740 });
  await fits();
  await isWhollyAccessible();
});

test('the largest phone is made smaller for a narrow or a low window, and can be used there', async () => {
  await person.page.getByLabel('Device').getByLabel('Screen').selectOption('414x736');
  await person.page.locator('.screen[style*="414px"]').waitFor();
  await person.settled();
  await fits();
  await person.page.setViewportSize({ width: 1280, height: 620 });
  await person.settled();
  await fits();
  await person.tap('Keypad');
  await person.title('Keypad');
});
