// Numbers as text, independent of any locale: the general form with six significant digits that a
// C++ stream writes by default, and the float literals of generated source.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace metagen {

/// Appends the number in decimal.
void appendInteger(std::string& out, std::int64_t number);

/// Appends the number with at most six significant digits, shortest general form: 1, 0.5, 1e-07,
/// 1.23457e+08.
void appendGeneral(std::string& out, double number);

/// Appends a float as a source literal: a whole number from -999999 to 999999 in general form and
/// ".f" (1.f), any other in general form and "f" (0.5f, 1e+06f). The bound keeps ".f" away from
/// exponents, where it would be ill-formed.
void appendFloatLiteral(std::string& out, float number);

/// Appends the number in decimal as a source literal; the smallest one as INT_MIN, which has no
/// literal of its own in the host's language.
void appendIntegerLiteral(std::string& out, std::int32_t number);

/// Appends the literals of the numbers, separated by ", ".
void appendFloatList(std::string& out, std::span<const float> numbers);

}  // namespace metagen
