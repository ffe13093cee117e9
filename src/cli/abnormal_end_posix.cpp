#include <cstdlib>

#include "cli/abnormal_end.h"

namespace metagen {

void abortProcess() { std::abort(); }

}  // namespace metagen
