// Reads the datasets of the sample tables back with jsonstat-toolkit. OM_JSONSTAT names the folder
// that render-records has written.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import JSONstat from 'jsonstat-toolkit';

const folder = process.env.OM_JSONSTAT;
const read = (name) => JSONstat(JSON.parse(readFileSync(join(folder, name), 'utf8')));
const labels = (dimension) => dimension.Category().map((category) => category.label);

test('a dataset has the dimensions of the table in their order', () => {
  const dataset = read('flat.json');
  assert.equal(dataset.class, 'dataset');
  assert.equal(dataset.label, 'Penguins by species');
  assert.deepEqual(dataset.id, ['d0', 'd1']);
  assert.deepEqual(dataset.Dimension().map((d) => d.label), ['Species', 'Statistics']);
  assert.deepEqual(labels(dataset.Dimension('d0')), ['Adelie', 'Chinstrap', 'Gentoo']);
  assert.equal(dataset.Dimension('d1').role, 'metric');
  assert.deepEqual(dataset.note, ['Palmer Archipelago, 2007 to 2009.']);
});

test('values are found by their categories', () => {
  const dataset = read('flat.json');
  const value = (species, statistic) => dataset.Data({d0: species, d1: statistic}).value;
  assert.equal(value('c0', 'c2'), 3700.66);
  assert.equal(value('c1', 'c0'), 68);
  assert.equal(value('c1', 'c1'), null);
  assert.equal(value('c2', 'c2'), -5076.02);
});

test('a sparse dataset has its values at the same places', () => {
  const dataset = read('nested.json');
  assert.equal(dataset.n, 180);
  const value = (...at) => dataset.Data(at).value;
  // Britain is behind its group Europe, Adult behind the group Of age.
  assert.equal(value(1, 0, 1, 0, 0), 0);
  assert.equal(value(2, 1, 2, 1, 2), (1 + 4 + 8 + 16 + 64) ** 2);
  assert.equal(value(3, 0, 1, 1, 0), (2 + 16) ** 2);
  assert.equal(value(0, 0, 1, 0, 0), null);
  assert.equal(value(4, 0, 1, 0, 0), null);
});

test('groups are the parents of their categories', () => {
  const region = read('nested.json').Dimension('d0');
  assert.deepEqual(labels(region), ['Europe', 'Britain', 'France', 'Elsewhere', 'Nowhere']);
  assert.equal(region.hierarchy, true);
  assert.deepEqual(region.Category('c0').id, ['c1', 'c2']);
  assert.equal(region.Category('c1').id, null);
});

test('footnotes are notes and status', () => {
  const dataset = read('footnotes.json');
  assert.deepEqual(dataset.note, ['Measured on land.', 'In grams.', 'Weighted by island.']);
  assert.deepEqual(dataset.Dimension('d0').note, ['Weighted by island.']);
  assert.deepEqual(dataset.Dimension('d0').Category('c1').note, ['Few birds.']);
  const cell = dataset.Data({d0: 'c0', d1: 'c0'});
  assert.equal(cell.value, 3700.7);
  assert.equal(cell.status, 'd,e');
  assert.equal(dataset.Data({d0: 'c1', d1: 'c0'}).status, null);
  assert.equal(dataset.extension.status.label.d, 'Significant at 5 per cent.');
});

test('cells without a number have no value, and their text beside it', () => {
  const dataset = read('columnless.json');
  assert.equal(dataset.Data([0]).value, null);
  assert.equal(dataset.Data([1]).value, 344);
  assert.equal(dataset.extension.text['0'], 'on a Monday');
});

test('hostile texts stay texts', () => {
  const dataset = read('hostile.json');
  assert.equal(dataset.label, '<script>alert("1")</script> & \'more\'');
  assert.equal(dataset.Dimension('d0').Category('c3').label, 'zero\0byte\x1B[31mred\x7F');
  assert.equal(dataset.Dimension('d0').Category('c6').label, '');
  assert.equal(dataset.Data({d0: 'c3', d1: 'c1'}).value, 4.5);
});

test('a table without cells has no values', () => {
  const dataset = read('empty.json');
  assert.deepEqual(dataset.size, [2, 2]);
  assert.equal(dataset.n, 4);
  assert.equal(dataset.value, null);
});

test('a document is a collection of its tables', () => {
  const collection = read('collection.json');
  assert.equal(collection.class, 'collection');
  assert.deepEqual(collection.Item().map((item) => item.label), [
    'Penguins by species', 'Survival by region, sex and class', 'Weights of penguins', 'Notes',
    'Nothing was counted'
  ]);
  assert.equal(collection.Dataset().length, 5);
  assert.equal(collection.Dataset(0).Data({d0: 'c2', d1: 'c0'}).value, 1240);
});
