"""Numbers at the start of a text, and 32-bit floats, as the C library has them.

Exact arithmetic throughout, so that every rounding happens once and where the rules have it.
"""

import fractions
import math
import re
import struct

_NUMBER = re.compile(
    rb"[ \t\n\v\f\r]*([+-]?)"
    rb"(?:(inf(?:inity)?)|(nan(?:\([0-9A-Za-z_]*\))?)"
    rb"|0x([0-9a-f]+\.?[0-9a-f]*|\.[0-9a-f]+)(?:p([+-]?[0-9]+))?"
    rb"|([0-9]+\.?[0-9]*|\.[0-9]+)(?:e([+-]?[0-9]+))?)", re.IGNORECASE)

_DOUBLE = (53, -1074, 1024)  # digits of the significand, smallest exponent, end of exponents
_FLOAT = (24, -149, 128)


def _positional(digits, base):
    """The value of digits with a point among them."""
    whole, _, part = digits.partition(b".")
    return fractions.Fraction(int(whole + part, base), base ** len(part))


def _exact(match):
    """The magnitude that the text has exactly: a fraction, infinity or nan."""
    _, infinity, nan, hexadecimal, binary_exponent, decimal, exponent = match.groups()
    if infinity:
        return math.inf
    if nan:
        return math.nan
    if hexadecimal:
        return _positional(hexadecimal, 16) * fractions.Fraction(2) ** int(binary_exponent or 0)
    # Longer exponents than any range needs would only cost time.
    return _positional(decimal, 10) * fractions.Fraction(10) ** max(-9999, min(
        9999, int(exponent or 0)))


def _rounded(exact, form):
    """The nearest number of the form, ties to even; infinity beyond its range."""
    if isinstance(exact, float) or exact == 0:
        return float(exact)
    digits, smallest, end = form
    exponent = exact.numerator.bit_length() - exact.denominator.bit_length()
    if fractions.Fraction(2) ** exponent > exact:
        exponent -= 1
    step = fractions.Fraction(2) ** max(exponent - digits + 1, smallest)
    rounded = round(exact / step) * step
    return math.inf if rounded >= fractions.Fraction(2) ** end else float(rounded)


def _read(text, form):
    """The number at the start of the text (bytes, up to a NUL), or None."""
    match = _NUMBER.match(text.split(b"\0")[0])
    if not match:
        return None
    number = _rounded(_exact(match), form)
    return -number if match[1] == b"-" else number


def atof(text):
    """A double; 0 when there is no number."""
    number = _read(text, _DOUBLE)
    return 0.0 if number is None else number


def narrowed(number):
    """A double as the nearest 32-bit float."""
    if math.isnan(number) or math.isinf(number):
        return number
    magnitude = _rounded(fractions.Fraction(abs(number)), _FLOAT)
    return math.copysign(magnitude, number)


class StandardError(Exception):
    """What the standard conversions throw; the message is theirs."""


def stof(text):
    """A 32-bit float, by one rounding from the text."""
    number = _read(text, _FLOAT)
    if number is None:
        raise StandardError("invalid stof argument")
    match = _NUMBER.match(text.split(b"\0")[0])
    exact = _exact(match)
    overflow = math.isinf(number) and not isinstance(exact, float)
    underflow = not isinstance(exact, float) and exact != 0 and number == 0
    if overflow or underflow:
        raise StandardError("stof argument out of range")
    return number


def general(number):
    """Six significant digits, shortest general form, as a stream writes a number by default."""
    if math.isnan(number):
        return b"-nan" if math.copysign(1, number) < 0 else b"nan"
    return b"%.6g" % number


def float_literal(number):
    """A 32-bit float in source: 1.f, 0.5f, 1e+06f."""
    plain_whole = abs(number) <= 999999 and number == math.floor(number)
    return general(number) + (b".f" if plain_whole else b"f")


def truncated(number):
    """A JSON number as a 32-bit integer; one that doesn't fit is the smallest."""
    whole = math.trunc(number)
    return whole if -2 ** 31 <= whole < 2 ** 31 else -2 ** 31


def f32(number):
    return struct.pack("<f", number)
