#include "compiled_tables.h"

namespace example {

HandlerMeta compiledHandlers(){
#include "handlers.inl"
}

Meta compiledMeta() {
#include "meta.inl"
}

}  // namespace example
