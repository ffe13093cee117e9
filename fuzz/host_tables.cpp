// The example host's readers of the binary tables.
#include "fuzz_target.h"
#include "loaded_tables.h"

namespace {

void load(std::string_view bytes) {
    if (bytes.starts_with("META")) {
        static_cast<void>(host::loadMeta(bytes));
    } else {
        static_cast<void>(host::loadHandlers(bytes));
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    metagen::fuzz::runToItsEnd(load, metagen::fuzz::textOf(data, size));
    return 0;
}
