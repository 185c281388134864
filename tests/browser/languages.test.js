// Every language on a narrow screen: no text is cut.
import assert from 'node:assert/strict';
import { readdir } from 'node:fs/promises';
import { after, before, test } from 'node:test';

import { Person } from './support/person.js';
import { Simulator } from './support/simulator.js';

const resources = new URL('../../resources/', import.meta.url);
const languages = (await readdir(resources)).filter((name) => name.endsWith('.lproj'))
  .map((name) => name.slice(0, -'.lproj'.length));

let simulator;
let person;
before(async () => {
  simulator = await Simulator.start('--language', languages[0]);
  person = await Person.at(simulator);
});
after(async () => {
  await person?.leave();
  await simulator?.stopAndRemove();
});

const isWhole = async (place) => assert.deepEqual(await person.clippedTexts(), [], place);

const lookThrough = async (place) => {
  const table = person.front.locator('.table');
  const [end, step] = await table.evaluate((element) => [element.scrollHeight, element.clientHeight - 64]);
  for (let offset = 0; offset < end; offset += step) {
    await table.evaluate((element, top) => { element.scrollTop = top; }, offset);
    await person.settled();
    await isWhole(`${place} from ${offset}`);
  }
  await table.evaluate((element) => { element.scrollTop = 0; });
  await person.settled();
};

const openRow = async (place) => {
  await person.front.getByRole('listitem').nth(place).getByRole('button').click();
  await person.settled();
};

const goBack = async () => {
  await person.front.locator('.bar-back').click();
  await person.settled();
};

for (const language of languages) {
  test(language, async () => {
    if (language !== languages[0])
      await person.page.getByLabel('Device').getByLabel('Language').selectOption(language);
    await person.page.locator(`.phone[lang=${language}]`).waitFor();
    await person.settled();
    for (const page of [1, 2, 3]) {
      await openRow(page);
      await lookThrough(`page ${page}`);
      await goBack();
    }
    await lookThrough('root page');
  });
}
