"""Reads two documents and finds what differs between them.

Equal is what metagen diff calls equal: objects are walked, everything else is compared whole,
numbers as doubles. Documents are read as metagen reads them: text after the first value is
ignored.
"""

import json
import re

from .report import ABSENT, CHANGED, Entry, Group, Report, Row, kind_of

# The objects of a plugin whose members have names of their own, and what those are called.
_SECTIONS = {"params": "", "userData": "user data"}

# The user data of a parameter's handler are named after the parameter.
_OF_HANDLER = re.compile(
    "(.+)_(?:tex|tex_on|tex_mult|res_mult|color|float|duplicate|duplicate_output)", re.DOTALL)


class UnreadableDocument(Exception):
    """A file that is no document; the text says which and why."""


def _refuse_constant(name):
    raise ValueError(f"{name} is no JSON")


def parse_document(text, name):
    """The document in the text. The name is for messages."""
    decoder = json.JSONDecoder(parse_constant=_refuse_constant)
    try:
        document, _ = decoder.raw_decode(text.lstrip(" \t\r\n"))
    except (ValueError, RecursionError) as error:
        raise UnreadableDocument(f"{name} is no JSON document: {error}") from error
    if not isinstance(document, dict):
        raise UnreadableDocument(f"{name} is no JSON object")
    return document


def same(left, right):
    """Whether two JSON values are equal; Python alone would take true for 1."""
    if isinstance(left, bool) or isinstance(right, bool):
        return left is right
    if isinstance(left, dict) and isinstance(right, dict):
        return left.keys() == right.keys() and all(same(left[key], right[key]) for key in left)
    if isinstance(left, list) and isinstance(right, list):
        return len(left) == len(right) and all(map(same, left, right))
    if isinstance(left, (int, float)) and isinstance(right, (int, float)):
        return left == right
    return type(left) is type(right) and left == right


def _keys(left, right):
    """The keys of two objects, either of which may be absent: "type" first, the rest in order."""
    keys = {**(left if isinstance(left, dict) else {}),
            **(right if isinstance(right, dict) else {})}
    return sorted(keys, key=lambda key: (key != "type", key))


def _member(value, key):
    return value.get(key, ABSENT) if isinstance(value, dict) else ABSENT


def _both_walkable(left, right):
    """Whether the values are objects, or one is and the other is absent; not when there is nothing
    below them to show."""
    sides = [side for side in (left, right) if side is not ABSENT]
    return all(isinstance(side, dict) for side in sides) and any(sides)


def _rows(key, left, right):
    if left is not ABSENT and right is not ABSENT and same(left, right):
        return []
    if not _both_walkable(left, right):
        return [Row(key, left, right)]
    rows = []
    for name in _keys(left, right):
        rows += _rows(f"{key}.{name}" if key else name, _member(left, name), _member(right, name))
    return rows


def _entry(section, name, left, right):
    """The entry of a name, in a list; an empty one when nothing differs."""
    rows = _rows("", left, right)
    return [Entry(kind_of(left, right), section, name, rows)] if rows else []


def _own_entries(left, right):
    """The entries of a plugin's own keys."""
    entries = []
    for key in _keys(left, right):
        sides = _member(left, key), _member(right, key)
        if key not in _SECTIONS or not _both_walkable(*sides):
            entries += _entry("plugin", key, *sides)
    return entries


def _named_entries(key, left, right):
    """The entries of what has names below a plugin's key."""
    sides = _member(left, key), _member(right, key)
    entries = []
    if _both_walkable(*sides):
        for name in sorted(_keys(*sides)):
            entries += _entry(_SECTIONS[key], name, *(_member(side, name) for side in sides))
    return entries


def _fold(parameters, user_data, names):
    """The entries of parameters, with those of their handlers' user data folded into them, and of
    other user data. The names are those of all parameters."""
    entries, others = {entry.name: entry for entry in parameters}, []
    for entry in user_data:
        match = _OF_HANDLER.fullmatch(entry.name)
        if match and match[1] in names:
            owner = entries.setdefault(match[1], Entry(CHANGED, "", match[1], []))
            owner.folded.append(entry)
        else:
            others.append(entry)
    return [entries[name] for name in sorted(entries)] + others


def _whole_plugin(kind, own, named):
    """The one entry of a plugin that came or went. Keys that are null or empty say nothing."""
    rows = [Row(f"{entry.name}.{row.key}".rstrip("."), row.left, row.right)
            for entry in own for row in entry.rows
            if not any(value is None or value == {} for value in (row.left, row.right))]
    return [Entry(kind, "plugin", "", rows, named)]


def _plugin_entries(left, right):
    if not all(isinstance(side, dict) or side is ABSENT for side in (left, right)):
        return _entry("plugin", "", left, right)
    own = _own_entries(left, right)
    parameters, user_data = (_named_entries(key, left, right) for key in _SECTIONS)
    if left is ABSENT or right is ABSENT:
        return _whole_plugin(kind_of(left, right), own, parameters + user_data)
    names = _keys(_member(left, "params"), _member(right, "params"))
    return own + _fold(parameters, user_data, names)


def _category(*plugins):
    """The category of the first of the plugins that has one."""
    for plugin in plugins:
        category = _member(plugin, "type")
        if isinstance(category, str):
            return category
    return ""


def _groups(left, right):
    groups = []
    own = set(_keys(left, right))
    left_plugins, right_plugins = _member(left, "plugins"), _member(right, "plugins")
    if _both_walkable(left_plugins, right_plugins):
        own.discard("plugins")
        for name in sorted(_keys(left_plugins, right_plugins)):
            sides = _member(left_plugins, name), _member(right_plugins, name)
            if entries := _plugin_entries(*sides):
                groups.append(Group(name, _category(*reversed(sides)), entries))
    entries = []
    for key in sorted(own):
        entries += _entry("", key, _member(left, key), _member(right, key))
    if entries:
        groups.insert(0, Group("", "", entries))
    return groups


def compare_documents(left, right, left_name, right_name):
    """The report of what changed from the one document to the other."""
    title = f"From {left_name} to {right_name}"
    return Report(title, left_name, right_name, [], _groups(left, right))
