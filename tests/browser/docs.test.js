// The examples of docs/simulator-api.md, run in their order against a fresh simulator. A block of JSON after a block
// of shell says what its last output contains.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { readFile } from 'node:fs/promises';
import { after, before, test } from 'node:test';

import { Simulator } from './support/simulator.js';

const text = await readFile(new URL('../../docs/simulator-api.md', import.meta.url), 'utf8');
const blocks = [...text.matchAll(/```(sh|json)\n(.*?)```/gs)].map(([, kind, content]) => ({ kind, content }));
const preparation = blocks.shift().content;

let simulator;
before(async () => { simulator = await Simulator.start(); });
after(() => simulator?.stopAndRemove());

const run = (script) => {
  const { stdout, stderr } = spawnSync('bash', ['-c', preparation + script],
    { encoding: 'utf8', env: { ...process.env, ADDRESS: simulator.origin, TOKEN: simulator.token } });
  assert.equal(stderr, '');
  return stdout.trim().split('\n').at(-1);
};

const contains = (actual, expected, path) => {
  if (Array.isArray(expected))
    return expected.forEach((part, index) => assert.ok(
      actual.some((candidate) => isIn(candidate, part)), `${path}[${index}] is not in ${JSON.stringify(actual)}`));
  if (expected !== null && typeof expected === 'object')
    return Object.entries(expected).forEach(([key, value]) => contains(actual?.[key], value, `${path}.${key}`));
  return assert.equal(actual, expected, path);
};

const isIn = (actual, expected) => {
  try {
    contains(actual, expected, '');
    return true;
  } catch {
    return false;
  }
};

blocks.forEach((block, index) => {
  if (block.kind !== 'sh')
    return;
  test(block.content.trim().split('\n').at(-1), () => {
    const output = run(block.content);
    if (blocks[index + 1]?.kind === 'json')
      contains(JSON.parse(output), JSON.parse(blocks[index + 1].content), 'answer');
  });
});
