// The style sheet of a page: fonts of the reader's system, tables with few lines, light and dark as
// the reader's system is, and a plain form for print.

#ifndef OM_RENDER_INTERNAL_HTMLSTYLE_H_
#define OM_RENDER_INTERNAL_HTMLSTYLE_H_

namespace om::render::internal {

inline constexpr char kHtmlStyle[] = R"css(
:root {
  color-scheme: light;
  --paper: #fff;
  --side: #f7f8fa;
  --ink: #1b1f24;
  --soft: #57606a;
  --line: #e3e6ea;
  --edge: #c9ced6;
  --rule: #8c959f;
  --accent: #0b57d0;
  --tint: #eef3fc;
  --sans: system-ui, -apple-system, "Segoe UI", Roboto, "Helvetica Neue", "Noto Sans",
    "Liberation Sans", Arial, sans-serif;
  --mono: ui-monospace, SFMono-Regular, Menlo, Consolas, "Liberation Mono", "DejaVu Sans Mono",
    monospace;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    color-scheme: dark;
    --paper: #14171b;
    --side: #191d22;
    --ink: #e4e7eb;
    --soft: #a5adb8;
    --line: #2a3038;
    --edge: #444c57;
    --rule: #6b7683;
    --accent: #8ab4f8;
    --tint: #1c2738;
  }
}
*, ::before, ::after { box-sizing: border-box; }
html {
  background: var(--paper);
  color: var(--ink);
  font: 1rem/1.5 var(--sans);
  text-size-adjust: none;
  -webkit-text-size-adjust: none;
}
body { margin: 0; overflow-wrap: break-word; }
a { color: var(--accent); text-underline-offset: .15em; }
:focus-visible { outline: 2px solid var(--accent); outline-offset: 2px; border-radius: 3px; }
bdi { unicode-bidi: isolate; }
.skip { position: absolute; left: -100vw; z-index: 9; padding: .5rem 1rem; background: var(--paper); }
.skip:focus { left: .5rem; top: .5rem; }

/* The outline beside the content */
.outline { background: var(--side); font-size: .875rem; line-height: 1.4; }
.outline summary { padding: .75rem 1.25rem; font-weight: 600; cursor: pointer; }
.outline ul { margin: 0; padding: 0; list-style: none; }
.outline details > ul { padding: 0 .75rem 1rem; }
.outline ul ul { margin-left: .75rem; border-left: 1px solid var(--line); padding-left: .25rem; }
.outline a { display: block; padding: .25rem .5rem; border-radius: 5px; color: var(--soft);
  text-decoration: none; }
.outline a.heading { color: var(--ink); font-weight: 500; }
.outline a:hover { color: var(--ink); background: var(--line); }
.outline a[aria-current] { color: var(--accent); background: var(--tint); }
main { padding: 1.5rem 1.25rem 4rem; }
@media screen and (max-width: 60rem) {
  .outline { position: sticky; top: 0; z-index: 5; max-height: 75vh; overflow-y: auto;
    border-bottom: 1px solid var(--line); }
  [id] { scroll-margin-top: 3.5rem; }
}
@media screen and (min-width: 60.01rem) {
  .outline { position: fixed; inset: 0 auto 0 0; width: 17rem; overflow-y: auto;
    border-right: 1px solid var(--line); padding-top: 1.25rem; }
  .outline ~ main { margin-left: 17rem; }
  .outline summary { list-style: none; cursor: default; pointer-events: none; color: var(--soft);
    font-weight: 500; padding-bottom: .5rem; }
  .outline summary::-webkit-details-marker { display: none; }
  main { padding: 2.5rem 3rem 6rem; }
  [id] { scroll-margin-top: 1.5rem; }
}
@media screen and (prefers-reduced-motion: no-preference) { html { scroll-behavior: smooth; } }

/* Headings and texts */
h1, h2, h3, h4, h5, h6 { margin: 0; line-height: 1.25; text-wrap: balance; font-weight: 600; }
h1 { font-size: 1.75rem; letter-spacing: -.015em; margin-bottom: 2rem; }
h2 { font-size: 1.375rem; letter-spacing: -.01em; margin: 3rem 0 1.25rem; padding-top: 1.5rem;
  border-top: 1px solid var(--line); }
h1 + section > h2 { margin-top: 0; padding-top: 0; border-top: 0; }
h3 { font-size: 1.1875rem; margin: 2.25rem 0 1rem; }
h4 { font-size: 1.0625rem; margin: 2rem 0 .75rem; }
h5, h6 { font-size: 1rem; margin: 2rem 0 .75rem; }
.part { margin: 0 0 2.25rem; }
.part > .label { margin: 0 0 .5rem; font-size: .875rem; font-weight: 600; color: var(--soft); }
.words { max-width: 44rem; }
.words p { margin: 0 0 .75rem; }
.page-title p { font-size: 1.25rem; font-weight: 600; margin: 0; line-height: 1.35; }
.page-title p + p { font-size: 1rem; font-weight: 400; color: var(--soft); margin-top: .25rem; }
pre.scroll { white-space: pre-wrap; margin: 0; padding: .75rem 1rem; min-width: 0; max-height: 60vh; background: var(--side);
  border: 1px solid var(--line); border-radius: 6px; font: .8125rem/1.55 var(--mono); tab-size: 8;
  unicode-bidi: plaintext; overflow-wrap: anywhere; }
.object p { display: flex; flex-wrap: wrap; gap: .25rem .75rem; align-items: baseline; margin: 0;
  padding: .625rem 1rem; border: 1px solid var(--line); border-radius: 6px; width: fit-content;
  max-width: 100%; }
.object + .object { margin-top: -1.25rem; }
.object .kind, .object .size, figcaption .kind { color: var(--soft); font-size: .875rem; }
figure { margin: 0; }
figure img { display: block; max-width: 100%; height: auto; background: #fff; border-radius: 6px; }
figcaption { margin-top: .5rem; font-size: .875rem; }

/* Tables */
.chooser { display: none; border: 0; margin: 0 0 .75rem; padding: 0; min-width: 0; }
.chooser legend { position: absolute; width: 1px; height: 1px; overflow: hidden;
  clip-path: inset(50%); white-space: nowrap; }
.scripted .chooser { display: flex; flex-wrap: wrap; gap: .5rem 1.25rem; }
.chooser label { display: flex; align-items: baseline; gap: .5rem; font-size: .875rem;
  color: var(--soft); max-width: 100%; }
.chooser select { font: inherit; color: var(--ink); background: var(--paper); max-width: 100%;
  min-width: 0; padding: .25rem .5rem; border: 1px solid var(--rule); border-radius: 6px; }
.none { margin: 0; color: var(--soft); }
.layer + .layer { margin-top: 2rem; }
.scripted .layer:not(.chosen) { display: none; }
.scripted .layer { margin-top: 0; }
.scripted .layer .at { position: absolute; clip-path: inset(50%); width: 1px; height: 1px;
  overflow: hidden; }
.scroll { position: relative; width: fit-content; min-width: min(100%, 30rem); max-width: 100%;
  max-height: 92vh; overflow: auto; }
div.broad { border-right: 1px solid var(--edge); }
div.tall { border-bottom: 1px solid var(--edge); }
table { width: max-content; border-collapse: separate; border-spacing: 0; font-size: .9375rem;
  line-height: 1.35;
  font-variant-numeric: tabular-nums lining-nums; border-bottom: 1px solid var(--rule); }
caption { text-align: left; padding: 0 0 .625rem; contain: inline-size; }
/* Wider than a narrow table, but never wider than what holds it. */
.stay { display: block; position: sticky; left: 0; width: max-content;
  max-width: min(max(100%, 30rem), 36rem, 100vw - 2.5rem); }
.title { font-weight: 600; font-size: .9375rem; margin: 0; }
.at { display: block; color: var(--soft); font-size: .875rem; }
.empty { margin: .25rem 0 0; color: var(--soft); }
th, td { padding: .3125rem .875rem; text-align: right; vertical-align: baseline; max-width: 24rem;
  background: var(--paper); }
td { white-space: nowrap; }
th { font-weight: 500; overflow-wrap: anywhere; }
.text, .row { text-align: left; }
td.text { white-space: normal; overflow-wrap: anywhere; }
thead { position: sticky; top: 0; z-index: 2; }
thead th, thead td { vertical-align: bottom; color: var(--soft); }
thead tr:first-child > * { border-top: 1px solid var(--rule); }
thead tr:last-child > *, thead [rowspan] { border-bottom: 1px solid var(--rule); }
.over { text-align: center; color: var(--ink);
  background: linear-gradient(var(--edge), var(--edge)) center bottom / calc(100% - 1.25rem) 1px
    no-repeat var(--paper); }
.over > span { display: inline-block; position: sticky; left: calc(var(--labels, 0px) + .75rem);
  right: .75rem; }
tbody th { font-weight: 400; vertical-align: top; }
tbody th[rowspan] { font-weight: 500; }
tbody th[rowspan] > span { position: sticky; top: calc(var(--head, 0px) + .3125rem); }
tbody td { vertical-align: top; }
tbody tr + tr > * { border-top: 1px solid var(--line); }
tbody tr.group > * { border-top-color: var(--edge); }
[class="row"] { padding-left: .5rem; }
tbody tr:hover > :not([rowspan]) { background: var(--tint); }
.stuck .row { position: sticky; left: 0; z-index: 1; }
.stuck .l1 { left: var(--l1); }
.stuck .l2 { left: var(--l2); }
.stuck .l3 { left: var(--l3); }
.stuck .l4 { left: var(--l4); }
.stuck .l5 { left: var(--l5); }
.stuck .l6 { left: var(--l6); }
.stuck .l7 { left: var(--l7); }
.stuck .l8 { left: var(--l8); }
.stuck .l9 { left: var(--l9); }

@media screen and (max-width: 60rem) {
  th, td, [class="row"] { padding-left: .5rem; padding-right: .5rem; }
  .row { max-width: min(24rem, 36vw); }
}

/* Footnotes */
sup { font-size: .75em; line-height: 0; margin-left: .125em; }
sup.hang { position: absolute; margin-top: .35em; }
sup a, .notes a { text-decoration: none; }
sup a:hover, .notes a:hover { text-decoration: underline; }
.caption { margin: .625rem 0 0; max-width: 44rem; font-size: .875rem; color: var(--soft); }
.notes { margin: .625rem 0 0; padding: 0; max-width: 44rem; list-style: none; font-size: .875rem;
  color: var(--soft); }
.notes li { padding: .0625rem .25rem .0625rem 1.5rem; text-indent: -1.25rem; border-radius: 4px; }
.notes a, .notes .mark { display: inline-block; min-width: 1.25rem; padding-right: .375rem;
  text-indent: 0; }
:target { background: var(--tint); }
section:target, .part:target { background: none; }

@media print {
  .outline, .skip, .scripted .chooser, .none { display: none; }
  main { padding: 0; }
  .scripted .layer:not(.chosen) { display: block; }
  .scripted .layer + .layer { margin-top: 2rem; }
  .scripted .layer .at { position: static; clip-path: none; width: auto; height: auto; }
  .scroll, pre.scroll { max-height: none; overflow: visible; }
  div.broad, div.tall { border: 0; }
  .stay, thead, .over > span, tbody th > span, .stuck .row { position: static; }
  tr, figure, .object { break-inside: avoid; }
  h2, h3, h4, h5, h6, caption { break-after: avoid; }
  a { color: inherit; text-decoration: none; }
}
)css";

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLSTYLE_H_
