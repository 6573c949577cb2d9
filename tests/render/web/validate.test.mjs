// The pages are valid by html-validate's recommended rules.

import assert from 'node:assert/strict';
import {join} from 'node:path';
import {test} from 'node:test';
import {HtmlValidate} from 'html-validate';
import {folder, pages} from './pages.mjs';

const validator = new HtmlValidate({root: true, extends: ['html-validate:recommended']});

for (const name of pages) {
  test(`${name} has nothing that html-validate finds`, async () => {
    const report = await validator.validateFile(join(folder, name));
    const findings = report.results.flatMap((result) =>
      result.messages.map(({line, ruleId, message}) => `${line}: ${ruleId}: ${message}`));
    assert.deepEqual(findings, []);
  });
}

test('html-validate finds what is wrong', async () => {
  const report = await validator.validateString('<p id="a" id="a"><div></p>');
  assert.equal(report.valid, false);
});
