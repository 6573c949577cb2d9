// axe-core finds nothing in the pages, light and dark, wide and narrow; and the browser has nothing
// to complain of, so that no page asks for anything or runs against its own policy.

import assert from 'node:assert/strict';
import {readFile} from 'node:fs/promises';
import {createRequire} from 'node:module';
import {test} from 'node:test';
import {narrow, wide, withPage} from './browser.mjs';
import {pages} from './pages.mjs';

const axe = await readFile(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

async function findingsIn(page) {
  await page.evaluate(axe);
  const {violations} = await page.evaluate(() => globalThis.axe.run());
  return violations.flatMap(({id, nodes}) =>
    nodes.map(({target, failureSummary}) => `${id}: ${target}: ${failureSummary}`));
}

for (const name of pages) {
  for (const colorScheme of ['light', 'dark']) {
    for (const viewport of [wide, narrow]) {
      test(`${name}, ${colorScheme}, ${viewport.width} wide, has nothing that axe-core finds`, () =>
        withPage(name, {colorScheme, viewport}, async (page, complaints) => {
          assert.deepEqual(await findingsIn(page), []);
          // The outline unfolded, where it is folded.
          await page.evaluate(() => document.querySelectorAll('details').forEach((d) => d.open = true));
          assert.deepEqual(await findingsIn(page), []);
          assert.deepEqual(complaints, []);
        }));
    }
  }
}

test('axe-core finds what is wrong', () =>
  withPage('sample.html', {}, async (page) => {
    await page.evaluate(() => document.querySelector('img').removeAttribute('alt'));
    const findings = await findingsIn(page);
    assert.equal(findings.length, 1);
    assert.match(findings[0], /^image-alt: /);
  }));
