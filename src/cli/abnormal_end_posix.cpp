#include "cli/abnormal_end.h"

namespace metagen {

void silenceAbort() {}

}  // namespace metagen
