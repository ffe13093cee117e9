#include <metagen/host/load.h>

#include <cstdio>

using namespace metagen::host;

static Meta compiled() {
#include "meta.inl"
}

int main() {
    const Meta loaded = loadMeta(readFile("first_record_tables/meta.bin"));
    for (const Meta& meta : {compiled(), loaded}) {
        const auto& [name, plugin] = *meta.plugins.begin();
        const auto& [parameterName, parameter] = *plugin.parameters.begin();
        std::printf("%s %s: %s %s\n", plugin.category.c_str(), name.c_str(), parameter.type.c_str(),
                    parameterName.c_str());
    }
}
