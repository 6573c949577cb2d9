// Where the sample pages are.

import {readdir} from 'node:fs/promises';

export const folder = process.env.OM_WEB_PAGES;
if (!folder) throw new Error('OM_WEB_PAGES: the folder that render-web-pages wrote to');

export const pages = (await readdir(folder)).filter((name) => name.endsWith('.html')).sort();
