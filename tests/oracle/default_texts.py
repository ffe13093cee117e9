"""Default value texts read back into numbers, from the rules of their format alone.

Texts are bytes. A reader of a single value gives its floats, a reader of a list all its numbers in
a row; None when the text is refused.
"""

import re

from number_texts import atof, narrowed

BLANKS = b" \t\n\v\f\r"
LETTERS = b"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"


def fixed_fields(*wanted):
    """A reader of the fields with these numbers; "(" and "," end a field."""
    def read(text):
        fields = re.split(rb"[(,]", text.split(b"\0")[0])
        values = [narrowed(atof(fields[number])) for number in wanted if number < len(fields)]
        return values if len(values) == len(wanted) else None
    return read


vector3 = fixed_fields(1, 2, 3)
acolor = fixed_fields(1, 2, 3, 4)
matrix = fixed_fields(2, 3, 4, 6, 7, 8, 10, 11, 12)
transform = fixed_fields(3, 4, 5, 7, 8, 9, 11, 12, 13, 15, 16, 17)


def compound_list(read_element):
    """A reader of a list whose elements are read by another reader."""
    def read(text):
        if not is_list_text(text):
            return None
        elements = [read_element(token) for token in tokens(text)]
        return None if None in elements else [value for element in elements for value in element]
    return read


def float_list(text):
    return [narrowed(atof(token)) for token in tokens(text)] if is_list_text(text) else None


def integer_list(text):
    return [atoi(token) for token in tokens(text)] if is_list_text(text) else None


def atoi(text):
    """The low 32 bits of the nearest 64-bit integer; 0 when there is no number."""
    match = re.match(rb"[ \t\n\v\f\r]*([+-]?[0-9]+)", text.split(b"\0")[0])
    number = int(match[1]) if match else 0
    saturated = max(-2 ** 63, min(2 ** 63 - 1, number))
    return (saturated + 2 ** 31) % 2 ** 32 - 2 ** 31


def is_list_text(text):
    """"List" stands at most five characters behind the blanks, and letters and "(" follow."""
    text = text.split(b"\0")[0].lstrip(BLANKS)
    for offset in range(6):
        if text[offset:offset + 4] == b"List":
            return text[offset:].lstrip(LETTERS)[:1] == b"("
    return False


def tokens(text):
    """The element texts of a list text, one after the other."""
    if len(text) < 5 or b"(" not in text[4:]:
        return
    start = text.index(b"(", 4) + 1
    is_first = True
    while True:
        end = element_end(text, start, is_first)
        if end is None:
            return
        token = text[start:end].strip(BLANKS)
        closes = text[start:].lstrip(BLANKS)[:1] == b")"
        if not token and closes and not text[5:start].strip(BLANKS):
            return
        yield token
        start = end + 1
        is_first = False


def element_end(text, start, is_first):
    """The place behind the element, None behind the last one."""
    comma = text.find(b",", start)
    if comma < 0:
        end = text.rfind(b")")
        return end if end > start or (end == start and is_first) else None
    opening = text.find(b"(", start)
    if opening < 0 or opening > comma:
        return comma
    closing = text.find(b")", opening + 1)
    if closing < 0:
        return None
    after = text.find(b",", closing + 1)
    return after if after >= 0 else closing + 1
