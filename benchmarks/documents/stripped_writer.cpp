#include "benchmarks/documents/stripped_writer.h"

#include <utility>

#include "benchmarks/documents/stripped_plugin.h"

namespace metagen::invented {

namespace {

constexpr std::uint64_t ofCoverage = 300;
constexpr std::size_t coveredInThousand = 400;
constexpr double documentVersion = 7;

}  // namespace

std::string strippedDocument(const InventedSdk& sdk) {
    picojson::object plugins;
    for (std::size_t number = 0; number < sdk.classCount(); ++number) {
        if (!sdk.dice(ofCoverage, number).inThousand(coveredInThousand)) continue;
        plugins[sdk.className(number)] = StrippedPlugin(sdk, number).build();
    }
    picojson::object document;
    document["version"] = picojson::value(documentVersion);
    document["plugins"] = picojson::value(std::move(plugins));
    return picojson::value(std::move(document)).serialize(true);
}

}  // namespace metagen::invented
