// A library with the SDK's file name that ends the process as soon as it is loaded: a run that
// survives beside it has not loaded it.
#include <cstdlib>

namespace {

struct AbortWhenLoaded {
    AbortWhenLoaded() { std::abort(); }
};

const AbortWhenLoaded abortWhenLoaded;

}  // namespace
