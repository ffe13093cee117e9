// A library with the SDK's file name that needs another library, which lies beside it. It has none
// of the SDK's entry points.
void neighbour();

namespace {

struct CallWhenLoaded {
    CallWhenLoaded() { neighbour(); }
};

const CallWhenLoaded callWhenLoaded;

}  // namespace
