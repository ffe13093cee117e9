"""Reads two documents and finds what differs between them.

Equal is what metagen diff calls equal: objects are walked, everything else is compared whole,
numbers as doubles. Documents are read as metagen reads them: text after the first value is
ignored.
"""

import json

from .report import ABSENT, Entry, Group, Report, Row, kind_of

# The objects of a plugin whose members have names of their own, and what those are called.
_SECTIONS = {"params": "", "userData": "user data"}


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


def _plugin_entries(left, right):
    if not _both_walkable(left, right):
        return _entry("", "", left, right)
    entries = []
    for key in sorted(_keys(left, right), key=_SECTIONS.__contains__):
        left_value, right_value = _member(left, key), _member(right, key)
        if key not in _SECTIONS or not _both_walkable(left_value, right_value):
            entries += _entry("plugin", key, left_value, right_value)
            continue
        for name in sorted(_keys(left_value, right_value)):
            entries += _entry(_SECTIONS[key], name, _member(left_value, name),
                              _member(right_value, name))
    return entries


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
                groups.append(Group(kind_of(*sides), name, _category(*reversed(sides)), entries))
    entries = []
    for key in sorted(own):
        entries += _entry("", key, _member(left, key), _member(right, key))
    if entries:
        groups.insert(0, Group("changed", "", "", entries))
    return groups


def compare_documents(left, right, left_name, right_name):
    """The report of what changed from the one document to the other."""
    return Report(f"From {left_name} to {right_name}", left_name, right_name, [],
                  _groups(left, right))
