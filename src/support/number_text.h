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

/// Appends the literals of the numbers, separated by ", ".
void appendFloatList(std::string& out, std::span<const float> numbers);

/// The literal of appendFloatLiteral as a text of its own.
std::string formatFloatLiteral(float number);

/// The list of appendFloatList as a text of its own; empty for no numbers.
std::string formatFloatList(std::span<const float> numbers);

}  // namespace metagen
