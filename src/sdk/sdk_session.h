// The SDK's library for the time of one run: found, loaded, resolved, and unloaded at the end.
#pragma once

#include "sdk/library_loader.h"

namespace metagen {

/// One per process. Creation looks for the library in the folder that QYRA_APPSDK_BIN names, in
/// the bin folder of the SDK root that QYRA_SDK names, and in the system's own search, in this
/// order; then it fills the process's entry points.
class SdkSession {
public:
    /// Throws Qyra::InitErr when no candidate yields a library or the library lacks an entry
    /// point. In the latter case the library stays loaded until the process ends.
    SdkSession();

    SdkSession(const SdkSession&) = delete;
    SdkSession& operator=(const SdkSession&) = delete;

    /// Unloads the library.
    ~SdkSession();

    /// Counts this program as a user of the library and switches the SDK's own frame buffer
    /// window off.
    void start();

private:
    LibraryHandle library;
};

}  // namespace metagen
