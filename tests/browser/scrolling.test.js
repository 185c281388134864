import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start('--contacts', '400');
  person = await Person.at(simulator);
  await person.tap('Blacklist');
  await person.tap('Select Contacts');
  await person.title('Select Contacts');
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const table = () => person.front.locator('.table');

// What a person sees in the middle of the screen.
const inTheMiddle = () => person.screen.evaluate((screen) => {
  const { x, y, width, height } = screen.getBoundingClientRect();
  const at = (element) => [...element.querySelectorAll('.cell')].find((cell) => {
    const box = cell.getBoundingClientRect();
    return box.top <= y + height / 2 && box.bottom > y + height / 2 && box.left < x + width;
  });
  return at(screen)?.innerText ?? '';
});

const scrollBy = (points) => table().evaluate((element, more) => { element.scrollTop += more; }, points);

test('rows that were there are seen again at once, before the phone answers', async () => {
  const first = await inTheMiddle();
  await scrollBy(600);
  await person.settled();
  let letOn;
  const held = new Promise((go) => { letOn = go; });
  await person.page.route('**/api/gesture', async (route) => {
    await held;
    await route.continue();
  });
  await scrollBy(-600);
  await person.page.evaluate(() => new Promise(requestAnimationFrame));
  assert.notEqual(first, '');
  assert.equal(await inTheMiddle(), first);
  assert.equal(await person.front.getByRole('listitem').getByText(first.split('\n')[0], { exact: true }).count(), 0,
    'but they are there for the eye only');
  letOn();
  await person.page.unroute('**/api/gesture');
  await person.settled();
  await person.sees(first.split('\n')[0]);
});

test('rows that were seen long ago are forgotten', async () => {
  for (let step = 0; step < 12; step += 1) {
    await scrollBy(500);
    await person.settled();
  }
  const kept = await person.front.locator('.cell').count();
  assert.ok(kept < 80, `${kept} rows are kept`);
});

test('scrolling that comes to rest shows the rows of its place', async () => {
  await table().hover();
  for (let turn = 0; turn < 15; turn += 1)
    await person.page.mouse.wheel(0, 120);
  await person.settled();
  const rows = await person.front.getByRole('listitem').evaluateAll((cells) => cells.map((cell) => {
    const { top, bottom } = cell.getBoundingClientRect();
    return { top, bottom };
  }));
  const screen = await person.screen.boundingBox();
  assert.ok(rows[0].top <= screen.y + 64);
  assert.ok(rows.at(-1).bottom >= screen.y + screen.height - 1);
});
