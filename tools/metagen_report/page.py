"""Writes a report as one HTML file that loads nothing: no network, no other file."""

import base64
import collections
import hashlib
import html
import json
import pathlib
import re
import string

from .report import ABSENT, ADDED, KINDS, REMOVED

_FOLDER = pathlib.Path(__file__).resolve().parent

_PAGE = string.Template("""\
<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="$policy">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>$title</title>
<style>$style</style>
<header>
<h1>$title</h1>
<p id="files">$files</p>
<p id="overview">$overview</p>
</header>
<nav aria-label="Plugins"><ol>
$index
</ol></nav>
<main>
<div id="bar">
<input id="filter" type="search" autocomplete="off" spellcheck="false" aria-label="Filter"
 placeholder="Filter plugins, parameters, values">
<span id="kinds">$kinds</span>
<div id="sides"><output id="shown"></output><span>$left</span><span>$right</span></div>
</div>
$notes
$groups
<p id="nothing" hidden>Nothing fits the filter.</p>
</main>
<script>$script</script>
</html>
""")

_UNIT = """\
An entry is a plugin that was added or removed, a parameter with the user data of its handler, other
user data, or a key."""

_NUMBER = r"\s*([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)\s*"
_COLOR = re.compile(rf"\b(?:A?Color)\({_NUMBER},{_NUMBER},{_NUMBER}(?:,{_NUMBER})?\)")

_escape = html.escape


def _text(text):
    """The text, escaped. Words too long for a line may be broken behind these signs."""
    return re.sub(r"\S{25,}", lambda word: re.sub("(?<=[A-Za-z])[_./(]", r"\g<0><wbr>", word[0]),
                  _escape(text))


def _span(kind, content):
    return f'<span class="{kind}">{content}</span>' if content else ""


def _css_color(components):
    """A colour of components from 0 to 1, which are cut to that range."""
    values = [min(max(float(component), 0), 1) for component in components]
    red, green, blue = (round(value * 255) for value in values[:3])
    alpha = values[3] if len(values) > 3 else 1
    return f"rgb({red} {green} {blue} / {alpha:.4g})"


def _with_swatches(text):
    """The text, escaped, with a swatch before every colour in it."""
    pieces, position = [], 0
    for match in _COLOR.finditer(text):
        color = _css_color([component for component in match.groups() if component])
        pieces += [_text(text[position:match.start()]),
                   f'<i class="swatch" style="--color: {color}"></i>']
        position = match.start()
    return "".join(pieces) + _text(text[position:])


def _condition(condition):
    """A condition of a scaling in words; as JSON when metagen wouldn't take it."""
    if isinstance(condition, dict) and condition.get("op") == 1:
        parameter, value = condition.get("ref"), condition.get("value")
        if isinstance(parameter, str) and isinstance(value, (int, float)):
            return f"when {parameter} = {json.dumps(value)}"
    return json.dumps(condition, ensure_ascii=False)


def _value(side, key, value):
    """A cell with a value: a text as it is, anything else as JSON."""
    if value is ABSENT:
        return f'<td class="{side} absent">—</td>'
    if value == "":
        content = _span("empty", "empty text")
    elif isinstance(value, str):
        content = f'<div class="value">{_with_swatches(value)}</div>'
    elif key == "scaling.conditions" and isinstance(value, list) and value:
        words = "\n".join(map(_condition, value))
        content = f'<div class="value">{_text(words)}</div>'
    else:
        text = _with_swatches(json.dumps(value, ensure_ascii=False))
        content = f'<div class="value json">{text}</div>'
    return f'<td class="{side}">{content}</td>'


def _cells(row):
    if row.note:
        return f'<td class="key"></td><td class="note" colspan="2">{_escape(row.note)}</td>'
    return (f'<td class="key">{_text(row.key)}</td>'
            + _value("left", row.key, row.left) + _value("right", row.key, row.right))


_NOTHING = '<td class="key"></td><td class="note" colspan="2"></td>'


def _plural(count, word):
    return f"{count} {word}" if count == 1 else f"{count} {word}s".replace("ys", "ies")


def _folded(entries):
    """A row with entries that open on demand."""
    user_data = sum(bool(entry.section) for entry in entries)
    counts = {"parameter": len(entries) - user_data, "user data entry": user_data}
    label = " and ".join(_plural(count, word) for word, count in counts.items() if count)
    table = f"<table>{''.join(map(_entry, entries))}</table>"
    return (f'<tr class="folded"><td colspan="4"><details><summary>{label}</summary>{table}'
            "</details></td></tr>")


def _entry(entry):
    head = (f'<th scope="rowgroup" rowspan="{max(len(entry.rows), 1)}">'
            f'{_span("badge", entry.kind)} <b>{_text(entry.name)}</b>'
            f'{_span("section", entry.section)}</th>')
    lines = "</tr><tr>".join(map(_cells, entry.rows)) or _NOTHING
    folded = _folded(entry.folded) if entry.folded else ""
    return f'<tbody data-kind="{entry.kind}"><tr>{head}{lines}</tr>{folded}</tbody>'


def _kinds(entries):
    """How many entries of each kind there are, in the page's order."""
    counts = collections.Counter(entry.kind for entry in entries)
    return [(kind, counts[kind]) for kind in KINDS if counts[kind]]


def _badge(kind, text):
    return f'<span class="badge" data-kind="{kind}">{text}</span>'


def _what_happened(group):
    """A badge for each kind of entry of a plugin."""
    whole = {entry.kind for entry in group.entries
             if entry.section == "plugin" and not entry.name and entry.kind in (ADDED, REMOVED)}
    return "".join(_badge(kind, f"plugin {kind}" if kind in whole else f"{count} {kind}")
                   for kind, count in _kinds(group.entries))


def _group_name(group):
    return _span("name", _text(group.name) or "the document itself")


def _link(number, group):
    return f'<li><a href="#p{number}">{_group_name(group)} {_what_happened(group)}</a></li>'


def _group(number, group):
    return (f'<details open id="p{number}"><summary>{_group_name(group)}'
            f'{_span("category", _escape(group.category))}{_what_happened(group)}</summary>'
            f'<table>{"".join(map(_entry, group.entries))}</table></details>')


def _overview(report, entries):
    """How many entries there are, and what that is."""
    if not entries:
        return "No differences."
    plugins = sum(bool(group.name) for group in report.groups)
    return f"{_plural(len(entries), 'entry')} in {_plural(plugins, 'plugin')}. {_UNIT}"


def render_page(report):
    """The page, as one text."""
    script = (_FOLDER / "page.js").read_text(encoding="utf-8")
    # Nothing is loaded, and no script runs but this one, whatever the documents hold.
    digest = base64.b64encode(hashlib.sha256(script.encode()).digest()).decode()
    entries = [entry for group in report.groups for entry in group.entries]
    notes = _escape("\n".join(report.notes))
    return _PAGE.substitute(
        policy=f"default-src 'none'; style-src 'unsafe-inline'; script-src 'sha256-{digest}'",
        style=(_FOLDER / "page.css").read_text(encoding="utf-8"),
        script=script,
        title=_escape(report.title),
        left=_escape(report.left),
        right=_escape(report.right),
        files=" · ".join(_span("file", _escape(file)) for file in report.files),
        overview=_overview(report, entries),
        notes=f'<pre id="notes">{notes}</pre>' if notes else "",
        kinds="".join(f'<label><input type="checkbox" checked value="{kind}">'
                      f'{_badge(kind, f"{count} {kind}")}</label>'
                      for kind, count in _kinds(entries)),
        index="\n".join(map(_link, range(len(report.groups)), report.groups)),
        groups="\n".join(map(_group, range(len(report.groups)), report.groups)))
