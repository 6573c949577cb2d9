// The layers of tables.html: the first table has the categories Crew, First and Second of Class, and
// for each but the crew the categories Adult and Child of Age. It remembers the layer of the crew.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {withPage} from './browser.mjs';

const table = (page) => page.locator('.part').first();
const shown = (page) => table(page).locator('.layer').filter({visible: true});
const list = (page, name) => table(page).getByRole('combobox', {name});
const chosen = (page, name) => list(page, name).locator('option:checked').textContent();
const cells = (page) => shown(page).locator('tbody td').allTextContents();

test('the layer that the table remembers is shown first', () =>
  withPage('tables.html', {}, async (page) => {
    assert.equal(await chosen(page, 'Class'), 'Crew');
    assert.equal(await shown(page).count(), 1);
    assert.deepEqual(await cells(page), ['3a', '20a', '670a', '192a']);
  }));

test('a dimension of one category is no choice', () =>
  withPage('tables.html', {}, async (page) => {
    assert.equal(await table(page).getByRole('combobox').count(), 2);
    assert.equal(await list(page, 'Ship').count(), 0);
  }));

test('choosing categories shows their layer', () =>
  withPage('tables.html', {}, async (page) => {
    await list(page, 'Class').selectOption('First');
    assert.deepEqual(await cells(page), ['4', '140', '118', '57']);
    await list(page, 'Age').selectOption('Child');
    assert.deepEqual(await cells(page), ['0', '1', '0', '5']);
    assert.equal(await shown(page).count(), 1);
  }));

test('the keyboard chooses, too', () =>
  withPage('tables.html', {}, async (page) => {
    await list(page, 'Class').focus();
    await page.keyboard.press('ArrowUp');
    assert.equal(await chosen(page, 'Class'), 'Second');
    assert.deepEqual(await cells(page), ['13', '80', '154', '14']);
  }));

test('a combination without a layer is said to be empty', () =>
  withPage('tables.html', {}, async (page) => {
    const empty = table(page).getByText('This layer is empty.');
    assert.equal(await empty.isVisible(), false);
    await list(page, 'Age').selectOption('Child');
    assert.equal(await shown(page).count(), 0);
    assert.equal(await empty.isVisible(), true);
    await list(page, 'Class').selectOption('Second');
    assert.equal(await empty.isVisible(), false);
    assert.deepEqual(await cells(page), ['0', '13', '0', '11']);
  }));

test('one table leaves the others alone', () =>
  withPage('tables.html', {}, async (page) => {
    const other = page.locator('.part').nth(1);
    await other.getByRole('combobox', {name: 'Class'}).selectOption('Third');
    assert.equal(await chosen(page, 'Class'), 'Crew');
    assert.deepEqual(await cells(page), ['3a', '20a', '670a', '192a']);
  }));

test('a link into another layer chooses it', () =>
  withPage('tables.html', {}, async (page) => {
    await page.evaluate(() => { location.hash = '#t1l0c0p0'; });
    await page.waitForFunction(() => document.querySelector('.chosen').dataset.at === '0 0');
    assert.deepEqual(await cells(page), ['4', '140', '118', '57']);
    assert.equal(await chosen(page, 'Class'), 'First');
  }));

test('without script, all layers are shown and none is to be chosen', () =>
  withPage('tables.html', {javaScriptEnabled: false}, async (page) => {
    assert.equal(await shown(page).count(), 5);
    assert.equal(await table(page).getByRole('combobox').count(), 0);
    const captions = await table(page).locator('caption .at').allTextContents();
    assert.equal(captions.length, 5);
    assert.equal(await table(page).locator('caption .at').first().isVisible(), true);
  }));

test('in print, all layers are shown and the outline is not', () =>
  withPage('tables.html', {}, async (page) => {
    await page.emulateMedia({media: 'print'});
    assert.equal(await shown(page).count(), 5);
    assert.equal(await table(page).getByRole('combobox').count(), 0);
    assert.equal(await page.locator('.outline').isVisible(), false);
  }));

test('a mark leads to its note, and the note back to the mark', () =>
  withPage('tables.html', {}, async (page) => {
    const mark = shown(page).locator('[role=doc-noteref]').first();
    await mark.click();
    const note = page.locator(':target');
    assert.equal(await note.textContent(), 'a There were no children among the crew.');
    await note.locator('[role=doc-backlink]').click();
    assert.equal(await page.locator(':target').getAttribute('href'), '#' + await note.evaluate(
      () => document.querySelector('.chosen .notes li').id));
  }));
