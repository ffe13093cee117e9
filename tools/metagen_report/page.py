"""Writes a report as one HTML file that loads nothing: no network, no other file."""

import base64
import hashlib
import html
import json
import pathlib
import re

from .report import ABSENT, KINDS

_FOLDER = pathlib.Path(__file__).resolve().parent

_NUMBER = r"\s*([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)\s*"
_COLOR = re.compile(rf"\b(?:A?Color)\({_NUMBER},{_NUMBER},{_NUMBER}(?:,{_NUMBER})?\)")


def _escape(text):
    return html.escape(text, quote=True)


def _element(name, content, **attributes):
    """An element around content that is HTML already. An attribute that is true stands without a
    value, one that is None is left out."""
    written = "".join(f" {key.rstrip('_').replace('_', '-')}"
                      + ("" if value is True else f'="{_escape(str(value))}"')
                      for key, value in attributes.items() if value is not None)
    return f"<{name}{written}>{content}</{name}>"


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
        pieces.append(_escape(text[position:match.start()]))
        color = _css_color([component for component in match.groups() if component])
        pieces.append(_element("i", "", class_="swatch", style=f"--color: {color}"))
        position = match.start()
    pieces.append(_escape(text[position:]))
    return "".join(pieces)


def _value(value):
    """A value's cell content: a text as it is, anything else as JSON."""
    if value is ABSENT:
        return _element("span", "—", class_="absent")
    if value == "":
        return _element("span", "empty text", class_="absent")
    if isinstance(value, str):
        return _element("div", _with_swatches(value), class_="value")
    text = json.dumps(value, ensure_ascii=False)
    return _element("div", _with_swatches(text), class_="value json")


def _row_cells(row):
    if row.note:
        return _element("td", _escape(row.note), colspan=3, class_="note")
    return (_element("td", _escape(row.key), class_="key")
            + _element("td", _value(row.left), class_="left")
            + _element("td", _value(row.right), class_="right"))


def _entry(entry):
    section = _element("span", _escape(entry.section), class_="section") if entry.section else ""
    badge = _element("span", entry.kind, class_="badge")
    head = _element("th", badge + _element("b", _escape(entry.name)) + section,
                    rowspan=len(entry.rows), scope="rowgroup")
    rows = [_element("tr", (head if number == 0 else "") + _row_cells(row))
            for number, row in enumerate(entry.rows)]
    return _element("tbody", "".join(rows), data_kind=entry.kind)


def _group(group):
    name = _element("span", _escape(group.name) or "the document itself", class_="name")
    category = _element("span", _escape(group.category), class_="category")
    summary = _element("summary", name + category
                       + _element("span", group.kind, class_="badge")
                       + _element("span", "", class_="count"))
    table = _element("table", "".join(map(_entry, group.entries)))
    return _element("details", summary + table, open=True, data_kind=group.kind)


def _plural(count, word):
    return f"{count} {word}" + ("" if count == 1 else "s")


def _overview(report):
    """One sentence: how many plugins of each kind there are."""
    if not report.groups:
        return "No differences."
    kinds = [group.kind for group in report.groups if group.name]
    counts = [f"{_plural(kinds.count(kind), 'plugin')} {kind}" for kind in KINDS if kind in kinds]
    return (", ".join(counts) or "No plugin differs") + "."


def _kind_boxes(report):
    """A box for each kind of entry that there is, to show or hide it."""
    counts = {kind: sum(entry.kind == kind for group in report.groups for entry in group.entries)
              for kind in KINDS}
    return "".join(
        _element("label", f'<input type="checkbox" checked value="{kind}">'
                 + _element("span", kind, class_="badge") + f" {count}", data_kind=kind)
        for kind, count in counts.items() if count > 0)


def _header(report):
    filter_box = ('<input id="filter" type="search" autocomplete="off" spellcheck="false"'
                  ' placeholder="Filter plugins, parameters, values" aria-label="Filter">')
    controls = (filter_box + _element("span", _kind_boxes(report), id="kinds")
                + _element("button", "Open all", id="open", type="button")
                + _element("button", "Close all", id="close", type="button")
                + _element("output", "", id="shown"))
    sides = _element("div", _element("span", _escape(report.left), class_="left")
                     + _element("span", _escape(report.right), class_="right"), class_="sides")
    return _element("header", _element("h1", _escape(report.title))
                    + _element("p", _overview(report), id="overview")
                    + _element("div", controls, class_="controls") + sides)


def render_page(report):
    """The page, as one text."""
    style = (_FOLDER / "page.css").read_text(encoding="utf-8")
    script = (_FOLDER / "page.js").read_text(encoding="utf-8")
    # Nothing is loaded, and no script runs but this one, whatever the documents hold.
    digest = base64.b64encode(hashlib.sha256(script.encode()).digest()).decode()
    policy = f"default-src 'none'; style-src 'unsafe-inline'; script-src 'sha256-{digest}'"
    notes = _element("pre", _escape("\n".join(report.notes)), id="notes") if report.notes else ""
    groups = "\n".join(map(_group, report.groups))
    return "\n".join([
        "<!DOCTYPE html>",
        '<html lang="en">',
        '<meta charset="utf-8">',
        f'<meta http-equiv="Content-Security-Policy" content="{_escape(policy)}">',
        '<meta name="viewport" content="width=device-width, initial-scale=1">',
        f"<title>{_escape(report.title)}</title>",
        f"<style>{style}</style>",
        _header(report),
        f"<main>{notes}\n{groups}\n</main>",
        '<p id="nothing" hidden>Nothing fits the filter.</p>',
        f"<script>{script}</script>",
        "</html>",
        ""])
