#include "support/memory.h"

namespace metagen {

// There large pages are a privilege that users have to be given.
void preferLargePages(void* /*memory*/, std::size_t /*size*/) {}

}  // namespace metagen
