// The readers of the binary tables, which hosts include.
#include "fuzz_target.h"
#include "metagen/host/load.h"

namespace {

void load(std::string_view bytes) {
    try {
        if (bytes.starts_with("META")) {
            static_cast<void>(metagen::host::loadMeta(bytes));
        } else {
            static_cast<void>(metagen::host::loadHandlers(bytes));
        }
    } catch (const metagen::host::BadTable& error) {
        const std::string place = "at byte " + std::to_string(error.byte) + ": ";
        metagen::fuzz::require(error.byte <= bytes.size(), "a table is wrong within its bytes");
        metagen::fuzz::require(std::string_view(error.what()).starts_with(place),
                               "the message names the place");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    metagen::fuzz::runToItsEnd(load, metagen::fuzz::textOf(data, size));
    return 0;
}
