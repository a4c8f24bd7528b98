/// @file
/// How the page of `qenxml report` looks: by day and by night, on paper, and on a phone.

#ifndef QENXML_TOOLS_REPORT_REPORTSTYLE_H
#define QENXML_TOOLS_REPORT_REPORTSTYLE_H

inline constexpr const char* reportStyle = R"(
:root {
  color-scheme: light dark;
  --page: #ffffff; --card: #f4f6f3; --line: #c9d1c7; --text: #1d241d; --quiet: #56604f;
  --accent: #2f6b2f; --range: #3f8a40; --track: #e3e9e0; --mark: #0b190a;
  --error: #a61b1b; --warning: #8a5300; --note: #2a5a8c; --land: #e9efe4;
  --outline: #76826f; --shade: #1d241d66;
}
@media (prefers-color-scheme: dark) {
  :root {
    --page: #141814; --card: #1f261f; --line: #3d483c; --text: #e6ebe4; --quiet: #a9b5a4;
    --accent: #8ccf86; --range: #4f9a4d; --track: #2b342b; --mark: #ffffff;
    --error: #ff9a92; --warning: #f0bb6a; --note: #93c3f2; --land: #232c22;
    --outline: #8a9685; --shade: #e6ebe466;
  }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; padding: 1rem; max-width: 75rem;
  background: var(--page); color: var(--text);
  font: 1rem/1.5 system-ui, -apple-system, "Segoe UI", Roboto, "DejaVu Sans", sans-serif;
  overflow-wrap: anywhere;
}
h1, h2, h3, h4, h5, h6 { line-height: 1.25; margin: 1.5rem 0 .5rem; }
h1 { font-size: 1.75rem; margin-top: 0; }
h2 { font-size: 1.4rem; border-bottom: 2px solid var(--accent); padding-bottom: .2rem; }
h3 { font-size: 1.15rem; }
h4 { font-size: 1.05rem; color: var(--quiet); }
h5 { font-size: 1.05rem; margin-top: 1.25rem; }
h6 { font-size: 1rem; margin: 0; }
p, ul, dl, figure { margin: .5rem 0; }
a { color: var(--accent); }
th .quiet { display: block; font-weight: 400; }
code, .id { font-family: ui-monospace, "DejaVu Sans Mono", monospace; font-size: .85em; }
.quiet, .place, figcaption { color: var(--quiet); }
nav ul { list-style: none; padding: 0; display: flex; flex-wrap: wrap; gap: .25rem 1.25rem; }
.figures { list-style: none; padding: 0; display: grid; grid-template-columns: repeat(auto-fill, minmax(7.5rem, 1fr)); gap: .5rem; }
.figures li { background: var(--card); border-radius: .4rem; padding: .5rem .75rem; color: var(--quiet); }
.figures b { display: block; font-size: 1.5rem; color: var(--text); }
/* A shade at the side on which a table goes on. */
.scroll {
  overflow-x: auto;
  background:
    linear-gradient(to right, var(--page) 40%, transparent) left / 2.5rem 100% no-repeat local,
    linear-gradient(to left, var(--page) 40%, transparent) right / 2.5rem 100% no-repeat local,
    linear-gradient(to right, var(--shade), transparent) left / .9rem 100% no-repeat scroll,
    linear-gradient(to left, var(--shade), transparent) right / .9rem 100% no-repeat scroll;
}
table { border-collapse: collapse; min-width: 100%; }
caption { text-align: left; color: var(--quiet); padding-bottom: .25rem; }
th, td { text-align: left; vertical-align: top; padding: .35rem .6rem; border-bottom: 1px solid var(--line); overflow-wrap: normal; }
tbody th { min-width: 12rem; overflow-wrap: anywhere; }
.number { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
.findings, .recs { list-style: none; padding: 0; }
.findings li { border-left: .3rem solid var(--line); padding: .25rem .75rem; margin: .6rem 0; background: var(--card); }
.findings p { margin: .1rem 0; }
.findings .error { border-color: var(--error); }
.findings .warning { border-color: var(--warning); }
.findings .note { border-color: var(--note); }
.error strong { color: var(--error); }
.warning strong { color: var(--warning); }
.note strong { color: var(--note); }
svg { display: block; width: 100%; height: auto; }
.maps { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(20rem, 100%), 1fr)); gap: .75rem; }
.maps figure { margin: 0; max-width: 30rem; }
svg.map { border: 1px solid var(--line); }
.land { fill: var(--land); }
.grid { stroke: var(--line); stroke-width: 1; fill: none; }
.scale { stroke: var(--text); stroke-width: 2; fill: none; }
.field { fill: var(--accent); stroke: var(--page); stroke-width: 1.5; }
svg text { fill: var(--text); font-size: 21px; }
svg .degrees { fill: var(--quiet); }
svg .degrees, svg .name { stroke: var(--land); stroke-width: 3px; paint-order: stroke; }
svg .name { font-weight: 600; }
details { margin: .25rem 0; }
summary { cursor: pointer; padding: .25rem 0; }
.recs { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(20rem, 100%), 1fr)); gap: .75rem; }
.recs > li { background: var(--card); border: 1px solid var(--line); border-radius: .4rem; padding: .75rem; }
.recs p { margin: .15rem 0; }
.bar { margin: .5rem 0; max-width: 30rem; }
.track { fill: var(--track); stroke: var(--outline); stroke-width: .75; }
.range { fill: var(--range); }
.average { fill: var(--mark); }
.facts { display: grid; grid-template-columns: auto 1fr; gap: .1rem .75rem; }
.facts dt { color: var(--quiet); }
.facts dd { margin: 0; }
footer { margin-top: 2rem; border-top: 1px solid var(--line); color: var(--quiet); }
@media (max-width: 37rem) {
  body { padding: .75rem; }
  table, caption, tbody, tbody th { display: block; }
  thead { display: none; }
  tbody tr { display: flex; flex-wrap: wrap; gap: 0 1rem; padding: .4rem 0; border-bottom: 1px solid var(--line); }
  tbody th, tbody td { border: 0; padding: 0; min-width: 0; overflow-wrap: anywhere; }
  tbody th { flex: 1 0 100%; }
  tbody .number { text-align: left; white-space: normal; }
  tbody td::before { content: attr(data-column) " "; color: var(--quiet); }
}
@media print {
  :root {
    --page: #ffffff; --card: #ffffff; --line: #999999; --text: #000000; --quiet: #444444;
    --accent: #1f4d1f; --range: #4b8f4b; --track: #e6e6e6; --mark: #000000;
    --error: #8b0000; --warning: #6b4000; --note: #1f4a75; --land: #ffffff; --outline: #666666;
  }
  @page { margin: 12mm; }
  html { font-size: 9pt; }
  body { max-width: none; padding: 0; line-height: 1.35; }
  nav, summary { display: none; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  /* No heading, nor what belongs to it, is left at the end of a page. */
  h2, h3, h4, h5, h6, caption, .place { break-inside: avoid; break-after: avoid; }
  .recs > li, .findings li, tr, figure { break-inside: avoid; }
  /* Hundreds of findings, packages and recs on few pages. */
  h3, h4, h5 { margin: .6rem 0 .2rem; }
  p, ul, details { margin: .2rem 0; }
  .findings { font-size: .85em; line-height: 1.25; }
  .findings li { padding: 0 .5rem; margin: .15rem 0; }
  .findings p { display: inline; }
  .findings p + p::before { content: "\2014\a0"; }
  th, td { padding: .1rem .5rem; }
  tbody th { min-width: 23rem; }
  .maps { grid-template-columns: repeat(3, 1fr); }
  .recs { grid-template-columns: repeat(3, 1fr); gap: .4rem; font-size: .9em; }
  .recs > li { padding: .3rem .5rem; }
  .bar { margin: .2rem 0; }
  .facts { display: block; margin: .1rem 0; }
  .facts dt, .facts dd { display: inline; }
  .facts dt::after { content: "\a0"; }
  .facts dd + dt::before { content: "\b7\a0"; }
  .place br { display: none; }
  .place .id { padding-right: .5rem; }
  tbody th .quiet { display: inline; }
  .figures { grid-template-columns: repeat(8, 1fr); }
  .scroll { overflow: visible; background: none; }
  details::details-content { content-visibility: visible; display: block; height: auto; }
}
)";

#endif
