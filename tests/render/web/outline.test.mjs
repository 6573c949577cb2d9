// The outline of sample.html and how tables behave in a window that is too small for them.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {narrow, withPage} from './browser.mjs';
import {pages} from './pages.mjs';

const current = (page) => page.locator('.outline [aria-current]').allTextContents();

for (const name of pages) {
  test(`every link in ${name} leads to a place of the page`, () =>
    withPage(name, {}, async (page) => {
      const lost = await page.evaluate(() => Array.from(document.links, (link) => link.hash)
        .filter((hash) => document.getElementById(hash.slice(1)) === null));
      assert.deepEqual(lost, []);
    }));
}

test('a link leads to its part and becomes the current one', () =>
  withPage('sample.html', {}, async (page) => {
    assert.deepEqual(await current(page), ['Penguins and passengers']);
    for (const name of ['Weights of penguins', 'Crosstabs', 'Nothing was counted']) {
      const link = page.locator('.outline').getByRole('link', {name, exact: true});
      await link.click();
      assert.deepEqual(await current(page), [name]);
      const id = (await link.getAttribute('href')).slice(1);
      await page.waitForFunction((part) => {
        const {top} = document.getElementById(part).getBoundingClientRect();
        return top >= 0 && top < innerHeight;
      }, id);
    }
  }));

test('the current link follows the reader', () =>
  withPage('sample.html', {}, async (page) => {
    await page.mouse.move(800, 400);
    await page.mouse.wheel(0, 100000);
    await page.waitForFunction(
      () => document.querySelector('.outline [aria-current]').textContent === 'Nothing was counted');
    await page.mouse.wheel(0, -100000);
    await page.waitForFunction(
      () => document.querySelector('.outline [aria-current]').textContent === 'Penguins and passengers');
  }));

test('in a narrow window the outline is folded, and folds again behind a click', () =>
  withPage('sample.html', {viewport: narrow}, async (page) => {
    const link = page.locator('.outline').getByRole('link', {name: 'Regression'});
    assert.equal(await link.isVisible(), false);
    await page.locator('.outline summary').click();
    assert.equal(await link.isVisible(), true);
    await link.click();
    assert.equal(await link.isVisible(), false);
    assert.deepEqual(await current(page), ['Regression']);
  }));

test('the outline unfolds when the window becomes wide', () =>
  withPage('sample.html', {viewport: narrow}, async (page) => {
    await page.setViewportSize({width: 1280, height: 900});
    await page.locator('.outline').getByRole('link', {name: 'Regression'}).waitFor();
  }));

test('no page is wider than its window', async () => {
  for (const name of pages) {
    await withPage(name, {viewport: narrow}, async (page) => {
      const width = await page.evaluate(() => document.documentElement.scrollWidth);
      assert.ok(width <= narrow.width, `${name} is ${width} wide`);
    });
  }
});

test('headings and row labels stay where they are while cells are scrolled', () =>
  withPage('tables.html', {viewport: {width: 800, height: 500}}, async (page) => {
    const boxOf = (name) => page.getByRole('group', {name});
    for (const [name, heading, label] of [
      ['Births by month', 'Town', 'Ash'],
      ['Rain by town and month', 'Month', 'Dale'],
    ]) {
      const box = boxOf(name);
      await box.scrollIntoViewIfNeeded();
      const before = await box.getByRole('columnheader', {name: heading, exact: true}).boundingBox();
      await box.evaluate((element) => { element.scrollTop = 200; element.scrollLeft = 150; });
      const scrolled = await box.evaluate((element) => element.scrollTop + element.scrollLeft);
      assert.ok(scrolled >= 150, `${name} scrolls by ${scrolled}`);
      const after = await box.getByRole('columnheader', {name: heading, exact: true}).boundingBox();
      assert.equal(after.x, before.x);
      const labelled = await box.getByRole('rowheader', {name: label, exact: true}).first().boundingBox();
      const outer = await box.boundingBox();
      assert.ok(labelled.x >= outer.x);
    }
  }));

test('the label of a group of rows stays in view as long as one of its rows', () =>
  withPage('tables.html', {viewport: {width: 800, height: 500}}, async (page) => {
    const box = page.getByRole('group', {name: 'Rain by town and month'});
    await box.evaluate((element) => { element.scrollTop = 600; });
    const head = await box.locator('thead').boundingBox();
    const label = await box.getByText('Birchwood').boundingBox();
    assert.ok(label.y >= head.y + head.height);
    assert.ok(label.y < head.y + head.height + 20);
  }));

test('only what scrolls is a stop for the keyboard', () =>
  withPage('tables.html', {}, async (page) => {
    const stops = page.locator('.scroll[tabindex]');
    const names = () => stops.locator('.title').allTextContents();
    await page.waitForFunction(() => document.querySelectorAll('.scroll[tabindex="0"]').length === 2);
    assert.deepEqual(await names(), ['Births by month', 'Rain by town and month']);
  }));
