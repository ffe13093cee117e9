"""`diff` told a second time, in plain Python, for metagen to be compared with.

By hand: diff.py left.json right.json prints the report.
"""

import json
import pathlib
import sys

from combine import compact, in_byte_order


def kind(value):
    """The kind of a JSON value; numbers are all of one."""
    if isinstance(value, (int, float)) and not isinstance(value, bool):
        return "number"
    return type(value).__name__


def equal(left, right):
    if kind(left) != kind(right):
        return False
    if isinstance(left, list):
        return len(left) == len(right) and all(map(equal, left, right))
    if isinstance(left, dict):
        return set(left) == set(right) and all(equal(left[key], right[key]) for key in left)
    return left == right


def lines(left, right, path=""):
    for key in in_byte_order(set(left) | set(right)):
        place = f"{path}:{key}"
        if key not in right:
            yield f"{place} is only present on left side\n"
        elif key not in left:
            yield f"{place} is only present on right side\n"
        elif isinstance(left[key], dict) and isinstance(right[key], dict):
            yield from lines(left[key], right[key], place)
        elif not equal(left[key], right[key]):
            yield f"{place} different values are {compact(left[key])} and {compact(right[key])}\n"


def diff(left_text, right_text):
    """The report on two documents, both objects."""
    return "".join(lines(json.loads(left_text, parse_int=float),
                         json.loads(right_text, parse_int=float)))


if __name__ == "__main__":
    sys.stdout.write(diff(*(pathlib.Path(path).read_text(encoding="utf-8")
                            for path in sys.argv[1:])))
