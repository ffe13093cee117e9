#include "support/standard_errors.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace metagen {

void throwInvalidMapKey() { throw std::out_of_range("invalid map<K, T> key"); }

int parseInteger(const std::string& text) {
    char* end = nullptr;
    errno = 0;
    const long long number = std::strtoll(text.c_str(), &end, 10);
    if (end == text.c_str()) throw std::invalid_argument("invalid stoi argument");
    if (errno == ERANGE || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max()) {
        throw std::out_of_range("stoi argument out of range");
    }
    return static_cast<int>(number);
}

float parseFloat(const std::string& text) {
    char* end = nullptr;
    errno = 0;
    const float number = std::strtof(text.c_str(), &end);
    if (end == text.c_str()) throw std::invalid_argument("invalid stof argument");
    // Platforms disagree on whether a subnormal result sets errno; here it always is an error.
    const bool subnormal = std::fpclassify(number) == FP_SUBNORMAL;
    if (errno == ERANGE || subnormal) throw std::out_of_range("stof argument out of range");
    return number;
}

}  // namespace metagen
