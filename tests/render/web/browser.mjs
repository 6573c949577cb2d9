// Opens the sample pages in headless Chromium, each in a new context without a network.

import {join} from 'node:path';
import {after} from 'node:test';
import {pathToFileURL} from 'node:url';
import {chromium} from 'playwright-core';
import {folder} from './pages.mjs';

export const wide = {width: 1280, height: 900};
export const narrow = {width: 400, height: 800};

// With a new profile, which goes with the browser.
const browser = await chromium.launch({
  executablePath: process.env.OM_CHROMIUM ?? '/usr/bin/chromium',
  args: ['--no-sandbox', '--headless', '--disable-gpu', '--disable-background-networking'],
});
after(() => browser.close());

// Runs `use(page, complaints)` with a page that is open. `complaints` lists what the browser says of
// it, and what the page asked for besides itself.
export async function withPage(name, options, use) {
  const context = await browser.newContext({offline: true, viewport: wide, ...options});
  try {
    const page = await context.newPage();
    const complaints = [];
    const self = pathToFileURL(join(folder, name)).href;
    page.on('console', (message) => complaints.push(message.text()));
    page.on('pageerror', (error) => complaints.push(String(error)));
    page.on('request', (request) => {
      const url = request.url();
      if (url !== self && !url.startsWith('data:')) complaints.push(url);
    });
    await page.goto(self);
    await use(page, complaints);
  } finally {
    await context.close();
  }
}
