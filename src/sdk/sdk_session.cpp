#include "sdk/sdk_session.h"

#include "sdk/exceptions.h"

namespace metagen {

namespace {

LibraryHandle findLibrary() {
    if (LibraryHandle library = loadFromEnvironment("QYRA_APPSDK_BIN", false)) return library;
    if (LibraryHandle library = loadFromEnvironment("QYRA_SDK", true)) return library;
    return loadFromSystem();
}

[[noreturn]] void fail(const char* prefix) { throw Qyra::InitErr(lastLoadErrorText(prefix)); }

}  // namespace

SdkSession::SdkSession() : library(findLibrary()) {
    if (library == nullptr) fail("Cannot load Qyra SDK Library file.");
    const auto resolve = [this](const char* name) { return findEntryPoint(library, name); };
    const char* missing = fillEntryPoints(entryPoints(), resolve);
    if (missing != nullptr) fail(missing);
}

SdkSession::~SdkSession() { unloadLibrary(library); }

void SdkSession::start() {
    const EntryPointTable& sdk = entryPoints();
    if (sdk.Qyra_incrementModuleReferenceCounter) sdk.Qyra_incrementModuleReferenceCounter();
    if (sdk.Qyra_enableFrameBuffer) sdk.Qyra_enableFrameBuffer(false);
}

}  // namespace metagen
