import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start();
  person = await Person.at(simulator);
  await person.tap('My Info');
  await person.title('All Contacts');
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const header = (letter) => person.front.locator('.section:not(.remembered *) .section-header', { hasText: letter });
const index = () => person.front.getByRole('group', { name: 'Index' });
const letter = (text) => index().getByRole('button', { name: text, exact: true });
const search = () => person.front.getByRole('searchbox');

// Where the header of a section stands below the upper edge of the list.
const distance = async (text) => {
  const [top, bar] = await Promise.all([header(text), person.front.locator('.bar')].map((part) => part.boundingBox()));
  return top.y - (bar.y + bar.height);
};

test('people stand in sections by their initials', async () => {
  await header('A').waitFor();
  await header('B').waitFor();
  await person.sees('Ruth Adler');
});

test('the index fits between the bar and the lower edge, each letter in its own place', async () => {
  const letters = await index().getByRole('button').evaluateAll((buttons) => buttons.map((button) => {
    const { top, bottom } = button.getBoundingClientRect();
    return { top, bottom };
  }));
  assert.ok(letters.length > 26);
  letters.slice(1).forEach(({ top }, before) => assert.ok(top >= letters[before].bottom - 0.5));
  const screen = await person.screen.boundingBox();
  assert.ok(letters.at(-1).bottom <= screen.y + screen.height + 0.5);
});

test('a touch on a letter shows its section', async () => {
  await letter('M').click();
  await header('M').waitFor();
  await person.settled();
  assert.ok(await distance('M') < 20);
});

test('a drag along the letters follows them', async () => {
  const [from, to] = await Promise.all([letter('D'), letter('P')].map((part) => part.boundingBox()));
  const { mouse } = person.page;
  await mouse.move(from.x + 7, from.y + 8);
  await mouse.down();
  await mouse.move(to.x + 7, to.y + 8, { steps: 12 });
  await mouse.up();
  await header('P').waitFor();
  await person.settled();
  assert.ok(await distance('P') < 20);
});

test('the index works without a pointer', async () => {
  await letter('B').focus();
  await person.page.keyboard.press('Enter');
  await header('B').waitFor();
  await person.settled();
  assert.ok(await distance('B') < 20);
});

test('the first sign of the index leads to the search field', async () => {
  await letter('Search').click();
  await person.sees('Ruth Adler');
  await search().waitFor();
});

test('a search finds people by the beginning of their names', async () => {
  await search().click();
  await person.page.keyboard.type('adl');
  await person.row('Theo Barnes').waitFor({ state: 'detached' });
  assert.deepEqual((await person.rows()).map((row) => row.trim()), ['Ruth Adler']);
});

test('a search for nobody says so', async () => {
  await person.page.keyboard.type('xyz');
  await person.sees('No Results');
});

test('the clear button brings everybody back', async () => {
  await person.front.getByRole('button', { name: 'Clear text' }).click();
  await person.sees('Theo Barnes');
  await person.settled();
  assert.equal(await search().inputValue(), '');
});

test('a person that was found is taken', async () => {
  await search().click();
  await person.page.keyboard.type('adler');
  await person.row('Theo Barnes').waitFor({ state: 'detached' });
  await person.row('Ruth Adler').getByRole('button').click();
  await person.title('Zelvora');
});
