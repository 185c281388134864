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

const violations = async () => {
  await person.settled();
  await person.page.evaluate(axe);
  const { violations: found } = await person.page.evaluate(() => window.axe.run(document, {
    // The phone's own colours are the platform's: iOS 8 has less contrast than a web page should.
    rules: { 'color-contrast': { enabled: false } },
  }));
  return found.map(({ id, impact, nodes }) => `${impact} ${id}: ${nodes.map(({ target }) => target).join(', ')}`);
};

const isAccessible = async () => assert.deepEqual(await violations(), []);

test('the settings page', isAccessible);

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

test('a narrow window shows the phone and the inspector below it', async () => {
  await person.page.setViewportSize({ width: 360, height: 740 });
  await isAccessible();
  const wide = await person.page.evaluate(() => document.documentElement.scrollWidth);
  assert.ok(wide <= 360, `the page is ${wide} wide`);
});
