#include <windows.h>

#include <cstdlib>

#include "cli/abnormal_end.h"

namespace metagen {

void silenceAbort() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    _set_abort_behavior(0, _WRITE_ABORT_MSG | _CALL_REPORTFAULT);
}

}  // namespace metagen
