#include "genm/source_literal.h"

#include <limits>

#include "support/number_text.h"

namespace metagen {

void appendIntegerLiteral(std::string& out, std::int32_t number) {
    if (number == std::numeric_limits<std::int32_t>::min()) {
        out += "INT_MIN";
    } else {
        appendInteger(out, number);
    }
}

}  // namespace metagen
