"""The messages in the sources: every text in them that reads like one, in the pieces in which it
stands there."""

import re

_COMMENT = re.compile(r"//[^\n]*")
_INCLUDE = re.compile(r"^\s*#.*$", re.MULTILINE)
_TEXT = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
_LIKE_A_MESSAGE = re.compile(r"\w+ +\w+|\w+ [-:]|\w:$|^Missing$")
# Texts that stand one behind the other are one.
_JOINT = re.compile(r'"\s*\n\s*"')

# What the tool writes into documents and generated files, and the names of types: no messages.
_WRITTEN = re.compile(
    r"qymat::|static constexpr|HandlerTypes::|HandlerMeta|Scaling::|unique value arrays|return"
    r"|^m\.|^Meta m|texture$")
_SIGNS = {'\\"': '"', "\\\\": "\\"}  # all others are white space


def _pieces(text):
    """A text as it shows, in pieces between what is filled in."""
    shown = re.sub(r"\\.", lambda sign: _SIGNS.get(sign[0], " "), text)
    return [re.sub(" +", " ", piece.strip().lstrip(' :,{"')) for piece in re.split("%s|%u", shown)]


def messages_of_sources(folder):
    """The pieces of all messages, in order. Those of metagen-lint explain themselves, and name their
    rule, which has a section in a page of its own."""
    found = set()
    for path in sorted(folder.rglob("*.cpp")) + sorted(folder.rglob("*.h")):
        if path.parent.name == "lint":
            continue
        text = _COMMENT.sub("", _INCLUDE.sub("", path.read_text(encoding="utf-8")))
        for literal in _TEXT.findall(_JOINT.sub("", text)):
            found.update(piece for piece in _pieces(literal)
                         if _LIKE_A_MESSAGE.search(piece) and not _WRITTEN.search(piece))
    return sorted(found)
