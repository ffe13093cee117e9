#include "fuzz_target.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace metagen::fuzz {

void require(bool condition, const char* promise) {
    if (condition) return;
    static_cast<void>(std::fprintf(stderr, "broken promise: %s\n", promise));
    std::abort();
}

void runToItsEnd(void (*body)(std::string_view text), std::string_view text) {
    try {
        body(text);
    } catch (const ProcessEnded&) {
        return;
    } catch (const std::runtime_error&) {  // a member of the wrong kind, a wrong catalogue or table
        return;
    } catch (const std::invalid_argument&) {  // no number
        return;
    } catch (const std::out_of_range&) {  // a missing member, a number beyond its type
        return;
    }
}

}  // namespace metagen::fuzz
