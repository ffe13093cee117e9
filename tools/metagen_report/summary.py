"""Reads a summary that metagen combine printed: six headed and numbered lists, and before them the
messages of its checks."""

import json
import re

from .report import (ABSENT, ADDED, CHANGED, DUPLICATED, FAILED, REMOVED, Entry, Group, Report,
                     Row)

# The plugins' types that are no types of parameters, too; only "texture" is both.
_CATEGORIES = (None, "bitmap", "BRDF", "node", "geometry", "light", "material", "render_channel",
               "settings", "uvw", "volumetric")


class UnreadableSummary(Exception):
    """A text that is no summary of combine; the text says what is missing."""


def _read_list(text, position, count):
    """The entries of a numbered list, of which one may hold line breaks, and where it ends."""
    entries = []
    for number in range(1, count + 1):
        start = f"{number}. "
        if not text.startswith(start, position):
            raise UnreadableSummary(f"an entry {number} is missing")
        position += len(start)
        following = f"\n{number + 1}. " if number < count else "\n"
        end = text.find(following, position)
        if end < 0:
            raise UnreadableSummary(f"entry {number} has no end")
        entries.append(text[position:end])
        position = end + 1
    return entries, position


def _read_lists(text):
    """The messages before the lists, and for each list the reader of its entries with them."""
    first = re.search(f"^{re.escape(_HEADINGS[0][0])}[0-9]+$", text, re.MULTILINE)
    position = first.start() if first else 0
    messages = text[:position].splitlines()
    lists = []
    for heading, reader in _HEADINGS:
        match = re.compile(rf"\n?{re.escape(heading)}([0-9]+)\n").match(text, position)
        if match is None:
            raise UnreadableSummary(f'the heading "{heading.rstrip()}" is missing')
        entries, position = _read_list(text, match.end(), int(match[1]))
        lists.append((reader, entries))
    return messages, lists


def _value_at(text, position):
    """The JSON value that begins there, or ABSENT, and where it ends."""
    try:
        return json.JSONDecoder().raw_decode(text, position)
    except (ValueError, RecursionError):
        return ABSENT, position


def _split_change(text):
    """A change, "name  old -> new" with JSON values, as its three pieces. Names may hold blanks, so
    the first place counts from which the rest reads as a change."""
    for blanks in re.finditer("  ", text):
        old, position = _value_at(text, blanks.end())
        if text.startswith(" -> ", position):
            new, end = _value_at(text, position + len(" -> "))
            if end == len(text) and new is not ABSENT:
                return text[:blanks.start()], old, new
    raise UnreadableSummary(f"no change: {text}")


def _split_name(text):
    plugin, _, parameter = text.partition("::")
    return plugin, parameter


def _entry(kind, name, *rows):
    """The entry of a parameter, or of the plugin itself when the name is empty."""
    return Entry(kind, "" if name else "plugin", name, list(rows))


def _change(key):
    """The reader of a list of changes of a key."""

    def read(text, _):
        name, old, new = _split_change(text)
        plugin, parameter = _split_name(name)
        return plugin, _entry(ADDED if old is ABSENT else CHANGED, parameter, Row(key, old, new))

    return read


def _failure(text, _):
    name, _, message = text.partition(": ")
    plugin, parameter = _split_name(name)
    return plugin, _entry(FAILED, parameter, Row("", note=message))


def _deprecation(text, _):
    plugin, parameter = _split_name(text)
    return plugin, _entry(REMOVED, parameter)


def _duplication(text, following):
    """Plugin::parameter::key::value. A plugin's own "type" is the last of its duplications, and
    combine lists it under the parameter that it looked at before."""
    plugin, rest = _split_name(text)
    parameter, rest = _split_name(rest)
    key, value_text = _split_name(rest)
    value, end = _value_at(value_text, 0)
    if value is ABSENT or end != len(value_text):
        raise UnreadableSummary(f"no duplication: {text}")
    rows = [Row(key, value, value)]
    if parameter and key == "type" and _split_name(following)[0] != plugin:
        if value in _CATEGORIES:
            rows.append(Row("", note=f'of the plugin: combine lists it under "{parameter}"'))
            parameter = ""
        elif value == "texture":
            rows.append(Row("", note="of the parameter or of the plugin: combine lists both so"))
    return plugin, _entry(DUPLICATED, parameter, *rows)


# The headings as combine prints them, each with what reads an entry of its list, given the entry
# that follows. One has no blank before the number, which is as combine has it.
_HEADINGS = (
    ("Number of changed plugin types: ", _change("type")),
    ("Changed parameter types: ", _change("type")),
    ("Overriding defaultValue:", _change("defaultValue")),
    ("Number of handler integrity checks failures: ", _failure),
    ("Number of deprecations: ", _deprecation),
    ("Number of duplications: ", _duplication),
)


def _groups(findings):
    """The findings by plugin, failures first. Rows of one name and kind stand together."""
    groups, entries = {}, {}
    for plugin, entry in findings:
        group = groups.setdefault(plugin, Group(plugin, "", []))
        present = entries.setdefault((plugin, entry.kind, entry.name), entry)
        if present is entry:
            group.entries.append(entry)
        else:
            present.rows += entry.rows
    for group in groups.values():
        group.entries.sort(key=lambda entry: (entry.kind != FAILED, entry.name))
    return sorted(groups.values(), key=lambda group: (group.entries[0].kind != FAILED, group.name))


def read_summary(text, name):
    """The report of a summary. The name is for its title."""
    messages, lists = _read_lists(text.replace("\r\n", "\n"))
    findings = [reader(entry, following) for reader, entries in lists
                for entry, following in zip(entries, [*entries[1:], ""])]
    return Report(f"What combine found: {name}", "SDK", "stripped document", messages,
                  _groups(findings))
