"""What a page shows: groups (plugins) of entries (parameters) of rows (keys and their values).

An entry is what is counted, everywhere: a plugin that is added or removed, a parameter with the
user data of its handler, other user data, or a key of a plugin or of the document."""

import dataclasses

# The value of a row on the side that lacks it. Not None, which stands for a JSON null.
ABSENT = object()

# What happened to an entry; the order in which the page shows them.
FAILED, ADDED, REMOVED = "failed", "added", "removed"
CHANGED, DUPLICATED = "changed", "duplicated"
KINDS = (FAILED, ADDED, REMOVED, CHANGED, DUPLICATED)


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
    """What stands under a name, and what happened to it. The section tells what the name is, where
    it is no parameter: "user data", or a key of the "plugin", whose empty name is the plugin
    itself. The folded entries belong to this one and are not counted."""

    kind: str
    section: str
    name: str
    rows: list
    folded: list = dataclasses.field(default_factory=list)


@dataclasses.dataclass
class Group:
    """One plugin; the empty name stands for the document's own keys."""

    name: str
    category: str
    entries: list


@dataclasses.dataclass
class Report:
    """A whole page: its title, what its two sides are called, lines to show first, the groups, and
    the files that it was made from."""

    title: str
    left: str
    right: str
    notes: list
    groups: list
    files: list = dataclasses.field(default_factory=list)


def kind_of(left, right):
    """What happened between two values."""
    if left is ABSENT:
        return ADDED
    return REMOVED if right is ABSENT else CHANGED
