"""What a page shows: groups (plugins) of entries (parameters) of rows (keys and their values)."""

import dataclasses

# The value of a row on the side that lacks it. Not None, which stands for a JSON null.
ABSENT = object()

# What happened to an entry or a group; the order in which the page offers them.
ADDED, REMOVED, CHANGED = "added", "removed", "changed"
DUPLICATED, FAILED = "duplicated", "failed"
KINDS = (ADDED, REMOVED, CHANGED, DUPLICATED, FAILED)


@dataclasses.dataclass
class Row:
    """One key with its values on both sides, JSON values or ABSENT. A row with a note has nothing
    to compare: the note stands in place of the values."""

    key: str
    left: object = ABSENT
    right: object = ABSENT
    note: str = ""


@dataclasses.dataclass
class Entry:
    """One parameter, or whatever else stands under a name, and what happened to it. The section
    tells what the name is, where it is no parameter: "user data", or a key of the "plugin"."""

    kind: str
    section: str
    name: str
    rows: list


@dataclasses.dataclass
class Group:
    """One plugin; the empty name stands for the document's own keys."""

    kind: str
    name: str
    category: str = ""
    entries: list = dataclasses.field(default_factory=list)


@dataclasses.dataclass
class Report:
    """A whole page: its title, what its two sides are called, lines to show first, and groups."""

    title: str
    left: str
    right: str
    notes: list
    groups: list


def kind_of(left, right):
    """What happened between two values."""
    if left is ABSENT:
        return ADDED
    return REMOVED if right is ABSENT else CHANGED
