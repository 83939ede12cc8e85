"""How measured figures are shown: a table in the terminal, and a page with plots of those that grow."""

import html
import math
import platform
import subprocess

STYLE = """
:root { color-scheme: light dark; --ink: #1c2333; --paper: #fff; --faint: #8a93a3; --line: #d7dbe2;
        --ours: #1769c9; --other: #c46a12; --over: #c0262d; --ok: #1b7f3b }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e4e7ee; --paper: #16181d; --faint: #8f98a8; --line: #343943;
          --ours: #6cb0ff; --other: #f0a35a; --over: #ff7b80; --ok: #62d28a } }
body { font: 15px/1.45 system-ui, sans-serif; color: var(--ink); background: var(--paper);
       max-width: 62rem; margin: 2rem auto; padding: 0 1rem }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums }
th, td { text-align: right; padding: .25rem .6rem; border-bottom: 1px solid var(--line); white-space: nowrap }
th:first-child, td:first-child { text-align: left; white-space: normal }
.over { color: var(--over); font-weight: 600 } .ok { color: var(--ok) } .none, caption, .faint { color: var(--faint) }
figure { display: inline-block; margin: 1rem 1.5rem 1rem 0 } figcaption { font-weight: 600 }
svg { overflow: visible } svg text { font: 11px system-ui, sans-serif; fill: var(--faint) }
.ours { stroke: var(--ours); fill: none; stroke-width: 2 } .reference { stroke: var(--other); fill: none; stroke-width: 2 }
circle.ours { fill: var(--ours) } circle.reference { fill: var(--other) } .axis { stroke: var(--line); fill: none }
text.ours { fill: var(--ours); stroke: none } text.reference { fill: var(--other); stroke: none }
"""


def number(value):
    if value == 0 or abs(value) >= 1000:
        return f"{value:,.0f}"
    return f"{value:.{max(0, 2 - math.floor(math.log10(abs(value))))}f}"


def _cells(figure, row):
    """Title, size, ours, reference, comparison, budget, verdict."""
    holds = figure.holds(row)
    limit = figure.limit(row["size"])
    sign = {"ratio": "x ", "added": "+", "absolute": ""}[figure.kind]
    compared = figure.reference and figure.kind != "absolute"
    return (figure.title,
            f"{row['size']:,} {figure.size}" if row["size"] else "",
            f"{number(row['ours'])} {figure.unit}".strip(),
            f"{number(row['reference'])} {figure.unit}".strip() if figure.reference else "",
            sign + number(figure.value(row)) if compared else "",
            "" if limit is None else sign + number(limit),
            {True: "ok", False: "OVER", None: ""}[holds])


def _shown(figures, rows):
    for figure in figures:
        for row in rows:
            if row["figure"] == figure.name:
                yield figure, row


def print_table(figures, rows):
    """Prints the figures and returns those that are over their budgets, in words."""
    lines = [("figure", "size", "ours", "reference", "compared", "budget", "")]
    over = []
    for figure, row in _shown(figures, rows):
        cells = _cells(figure, row)
        lines.append(cells)
        if figure.holds(row) is False:
            over.append(f"{cells[0]} {cells[1]} is {cells[4] or cells[2]}, at most {cells[5]}")
    widths = [max(map(len, column)) for column in zip(*lines)]
    for cells in lines:
        first, *rest = (cell.ljust(width) if i == 0 else cell.rjust(width)
                        for i, (cell, width) in enumerate(zip(cells, widths)))
        print(first, *rest, sep="  ")
    return over


def _plot(figure, rows):
    """Ours and its reference over the size, both axes logarithmic."""
    width, height, left = 300, 170, 46
    rows = sorted(rows, key=lambda row: row["size"])
    lines = {"ours": [(row["size"], row["ours"]) for row in rows if row["ours"] > 0]}
    if figure.reference:
        lines["reference"] = [(row["size"], row["reference"]) for row in rows if row["reference"] > 0]
    values = [y for points in lines.values() for _, y in points]
    low, high = math.log10(min(values)), math.log10(max(values))
    low, high = (low - .15, high + .15)
    first, last = math.log10(rows[0]["size"]), math.log10(rows[-1]["size"])

    def place(x, y):
        return (left + (math.log10(x) - first) / (last - first) * (width - left - 10),
                height - 24 - (math.log10(y) - low) / (high - low) * (height - 44))

    drawn = [f'<path class="axis" d="M{left} 8V{height - 24}H{width}"/>']
    for name, points in lines.items():
        places = [place(*point) for point in points]
        drawn.append(f'<polyline class="{name}" points="{" ".join(f"{x:.1f},{y:.1f}" for x, y in places)}"/>')
        drawn += [f'<circle class="{name}" cx="{x:.1f}" cy="{y:.1f}" r="3"/>' for x, y in places]
    for y in (min(values), max(values)):
        drawn.append(f'<text x="{left - 6}" y="{place(rows[0]["size"], y)[1] + 4:.1f}" text-anchor="end">{number(y)}</text>')
    for row in rows:
        x = place(row["size"], values[0])[0]
        drawn.append(f'<text x="{x:.1f}" y="{height - 8}" text-anchor="middle">{row["size"]:,}</text>')
    legend = "" if len(lines) == 1 else ' <span class="faint">blue: ours; orange: ' + html.escape(figure.reference) + "</span>"
    return (f"<figure><figcaption>{html.escape(figure.title)}</figcaption>{legend}<br>"
            f'<svg width="{width}" height="{height}" role="img">{"".join(drawn)}</svg>'
            f'<br><span class="faint">{figure.unit} over {figure.size}</span></figure>')


def _revision():
    try:
        return subprocess.run(["git", "describe", "--always", "--dirty"], capture_output=True, text=True,
                              check=True).stdout.strip()
    except (OSError, subprocess.CalledProcessError):
        return "an unknown revision"


def page(figures, rows, skipped):
    body = []
    for figure, row in _shown(figures, rows):
        *cells, verdict = _cells(figure, row)
        shown = "".join(f"<td>{html.escape(cell)}</td>" for cell in cells)
        body.append(f'<tr>{shown}<td class="{verdict.lower() or "none"}">{verdict or "-"}</td></tr>')
    plots = []
    for figure in figures:
        grown = [row for row in rows if row["figure"] == figure.name and row["size"] and row["ours"] > 0]
        if len({row["size"] for row in grown}) > 2:
            plots.append(_plot(figure, grown))
    notes = "".join(f"<p>{html.escape(line)}</p>" for line in skipped)
    return f"""<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>What Wrenvale costs</title><style>{STYLE}</style>
<h1>What Wrenvale costs</h1>
<p class="faint">{html.escape(_revision())} on {html.escape(platform.platform())}. Medians; each beside its
reference in the same run.</p>
<table><thead><tr><th>figure<th>size<th>ours<th>reference<th>compared<th>budget<th></tr></thead>
<tbody>{"".join(body)}</tbody></table>{notes}
<h2>How it grows</h2><p class="faint">All axes are logarithmic.</p>{"".join(plots)}
</html>
"""
