// The functions that the library exports, declared from the interface's one list, so that a
// definition with another signature doesn't compile.
#pragma once

#include "sdk/qyra_sdk.h"

#define REPLAY_DECLARATION(result, name, parameters) extern "C" result name parameters;
QYRA_SDK_ENTRY_POINTS(REPLAY_DECLARATION)
#undef REPLAY_DECLARATION
