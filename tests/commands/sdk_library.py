"""The replay SDK's library, and copies of it that lack an entry point."""

import re

from harness import LAUNCHER, REPLAY_SDK, ROOT, WINDOWS

LIBRARY_NAME = "QyraSDKLibrary.dll" if WINDOWS else "libQyraSDKLibrary.so"
LIBRARY = REPLAY_SDK / "bin" / LIBRARY_NAME

_INTERFACE = (ROOT / "src" / "sdk" / "qyra_sdk.h").read_text(encoding="utf-8")
ENTRY_POINTS = re.findall(r"^ +ENTRY\([^,]+, (\w+),", _INTERFACE, re.MULTILINE)


def library_without(entry_point):
    """The library's bytes with another name wherever this one stands. On Windows, which searches by
    the order of the names, the last letter differs and keeps it in its place; on Linux the first,
    since other names may lie in the rest of this one."""
    name = b"\0" + entry_point.encode() + b"\0"
    other = bytearray(name)
    other[-2 if WINDOWS else 1] -= 1
    library = LIBRARY.read_bytes()
    if name not in library:
        raise LookupError(entry_point)
    return library.replace(name, other)


def missing_message(library, entry_point):
    """What is printed about an entry point that the library at this place lacks."""
    if not WINDOWS:
        reason = f"{library}: undefined symbol: {entry_point}"
    elif LAUNCHER:
        reason = "Procedure not found."
    else:
        reason = "The specified procedure could not be found."
    return f"{entry_point} [{reason}]\n"
