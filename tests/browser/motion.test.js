// How pages move, and that they do not for a person who wants no motion.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

let simulator;
before(async () => { simulator = await Simulator.start(); });
after(() => simulator?.stopAndRemove());

// The names of all motions that begin on the phone from now on.
const watchMotions = (person) => person.page.evaluate(() => {
  window.motions = [];
  for (const kind of ['animationstart', 'transitionstart'])
    document.addEventListener(kind, (event) =>
      event.target.closest('.screen') && window.motions.push(event.animationName ?? event.propertyName));
});

const openAPageAndASheet = async (person) => {
  await watchMotions(person);
  await person.tap('Keypad');
  await person.title('Keypad');
  await person.pressBar('Zelvora');
  await person.title('Zelvora');
  await person.page.locator('.leaving').waitFor({ state: 'detached' });
  await person.pressBar('Tools');
  await person.screen.getByRole('dialog').waitFor();
  await person.press('Cancel');
  await person.screen.getByRole('dialog').waitFor({ state: 'detached' });
  return person.page.evaluate(() => window.motions);
};

test('pages and sheets move as on the phone', async () => {
  const person = await Person.at(simulator, { reducedMotion: 'no-preference' });
  const motions = await openAPageAndASheet(person);
  for (const motion of ['from-right', 'to-left', 'from-left', 'to-right', 'from-below', 'to-below'])
    assert.ok(motions.includes(motion), `${motion} is not in ${motions}`);
  await person.leave();
});

test('who wants no motion sees none', async () => {
  const person = await Person.at(simulator, { reducedMotion: 'reduce' });
  assert.deepEqual(await openAPageAndASheet(person), []);
  await person.leave();
});
