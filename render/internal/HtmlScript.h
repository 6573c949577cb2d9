// The script of a page. A page says all that it has to say without it: it shows the layers one
// after the other then, and the outline is a plain list of links.

#ifndef OM_RENDER_INTERNAL_HTMLSCRIPT_H_
#define OM_RENDER_INTERNAL_HTMLSCRIPT_H_

namespace om::render::internal {

inline constexpr char kHtmlScript[] = R"js(
'use strict';
(() => {
  const root = document.documentElement;
  root.classList.add('scripted');

  // Of several layers, the one is shown whose categories are chosen.
  const layersOf = (chooser) => chooser.parentElement.querySelectorAll(':scope > .layer');
  const show = (chooser) => {
    const at = Array.from(chooser.querySelectorAll('select'), (select) => select.value).join(' ');
    let found = false;
    for (const layer of layersOf(chooser)) {
      const chosen = layer.dataset.at === at;
      layer.classList.toggle('chosen', chosen);
      found ||= chosen;
    }
    chooser.nextElementSibling.firstElementChild.hidden = found;
  };
  document.addEventListener('change', (event) => {
    const chooser = event.target.closest('.chooser');
    if (chooser) show(chooser);
  });

  // A link into a layer that is not shown, as from another page, chooses it.
  const reveal = () => {
    const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
    const layer = target?.closest('.layer:not(.chosen)');
    if (!layer) return;
    const chooser = layer.parentElement.querySelector('.chooser');
    const positions = layer.dataset.at.split(' ');
    chooser.querySelectorAll('select').forEach((select, i) => { select.value = positions[i]; });
    show(chooser);
    target.scrollIntoView();
  };

  // Labels stay in view beside cells that are scrolled, unless they leave no room for them. What
  // does not scroll is no stop for the keyboard.
  const fit = (box) => {
    const broad = box.scrollWidth > box.clientWidth + 1;
    const tall = box.scrollHeight > box.clientHeight + 1;
    if (broad || tall) box.tabIndex = 0; else box.removeAttribute('tabindex');
    box.classList.toggle('broad', broad);
    box.classList.toggle('tall', tall);
    box.classList.remove('stuck');
    box.style.setProperty('--head', (box.querySelector('thead')?.offsetHeight ?? 0) + 'px');
    let width = 0;
    for (const cell of box.querySelectorAll('tbody tr:first-child > .row')) {
      width = cell.offsetLeft + cell.offsetWidth;
    }
    if (width === 0 || width > box.clientWidth / 2) return;
    for (let level = 1; level < 10; ++level) {
      const cell = box.querySelector('.l' + level);
      if (cell) box.style.setProperty('--l' + level, cell.offsetLeft + 'px');
    }
    box.style.setProperty('--labels', width + 'px');
    box.classList.add('stuck');
  };

  document.addEventListener('DOMContentLoaded', () => {
    document.querySelectorAll('.chooser').forEach(show);
    reveal();
    addEventListener('hashchange', reveal);

    const sizes = new ResizeObserver((entries) => entries.forEach(({target}) => fit(target)));
    document.querySelectorAll('.scroll').forEach((box) => sizes.observe(box));

    const outline = document.querySelector('.outline');
    if (!outline) return;
    const narrow = matchMedia('(max-width: 60rem)');
    const details = outline.firstElementChild;
    const fold = () => { details.open = !narrow.matches; };
    fold();
    narrow.addEventListener('change', fold);

    // The section that is being read is the last one that begins above a line. The line is near the
    // upper edge, and goes down to the lower one at the end of the page, to reach the last sections.
    const links = Array.from(outline.querySelectorAll('a'));
    const parts = links.map((link) => document.getElementById(link.hash.slice(1)));
    let current = null;
    let chosenAt = -Infinity;
    const mark = (link) => {
      if (link === current) return;
      current?.removeAttribute('aria-current');
      current = link;
      current.setAttribute('aria-current', 'true');
      const box = outline.getBoundingClientRect();
      const at = link.getBoundingClientRect();
      if (at.top < box.top || at.bottom > box.bottom) {
        outline.scrollTop += at.top - box.top - box.height / 3;
      }
    };
    const follow = () => {
      if (performance.now() - chosenAt < 1000) return;
      const range = root.scrollHeight - innerHeight;
      const progress = range > 0 ? Math.min(scrollY / range, 1) : 0;
      const line = 120 + (innerHeight - 120) * progress ** 8;
      let first = 0;
      let last = parts.length;
      while (last - first > 1) {
        const middle = (first + last) >> 1;
        if (parts[middle].getBoundingClientRect().top <= line) first = middle; else last = middle;
      }
      mark(links[first]);
    };
    let waiting = false;
    addEventListener('scroll', () => {
      if (waiting) return;
      waiting = true;
      requestAnimationFrame(() => { waiting = false; follow(); });
    }, {passive: true});
    outline.addEventListener('click', (event) => {
      const link = event.target.closest('a');
      if (!link) return;
      chosenAt = performance.now();
      mark(link);
      fold();
    });
    follow();
  });
})();
)js";

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLSCRIPT_H_
