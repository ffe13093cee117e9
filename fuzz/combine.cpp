// A stripped and a live document through the merge, both checks, the summary and the writer.
#include <map>
#include <string>
#include <utility>

#include "combine/combine_report.h"
#include "combine/combined_document.h"
#include "combine/live_document.h"
#include "combine/merge.h"
#include "combine/name_checks.h"
#include "combine/summary.h"
#include "combine/texture_handler_checks.h"
#include "fuzz_target.h"
#include "support/json.h"
#include "support/process_end.h"

using namespace metagen;

namespace {

/// Takes the plugins that the stripped document doesn't name out of the live one, as texts.
PluginTexts takeOtherPlugins(json::Object& live, const NamedPlugins& named) {
    PluginTexts others;
    const auto plugins = live.find("plugins");
    if (plugins == live.end() || !plugins->second.is<json::Object>()) return others;
    std::erase_if(json::asObject(plugins->second), [&](const auto& member) {
        const auto& [name, plugin] = member;
        if (!plugin.template is<json::Object>() || named.contains(name)) return false;
        others.emplace(name, CombinedDocument(json::asObject(plugin)).text());
        return true;
    });
    return others;
}

/// The combined document as the command makes it, with trees only of the plugins that are named.
std::string combineNamedPlugins(std::string_view strippedText, std::string_view liveText) {
    json::Value stripped = json::parse(strippedText).value();
    json::Value live = json::parse(liveText).value();
    json::Object& document = json::asObject(live);
    const PluginTexts others = takeOtherPlugins(document, NamedPlugins(stripped));
    CombineReport report;
    merge(std::move(json::asObject(stripped)), document, report);
    return CombinedDocument(document, others).text();
}

void combineDocuments(std::string_view input) {
    const auto [strippedText, liveText] = fuzz::twoDocuments(input);
    std::optional<json::Value> stripped = json::parse(strippedText);
    std::optional<json::Value> live = json::parse(liveText);
    if (!stripped || !live) return;
    json::Object& document = json::asObject(*live);

    CombineReport report;
    merge(std::move(json::asObject(*stripped)), document, report);
    const std::string combined = CombinedDocument(document).text();
    fuzz::require(combined.front() == '{' && combined.back() == '}', "the output is an object");
    fuzz::require(combined == combineNamedPlugins(strippedText, liveText),
                  "plugins that are not named are the same as texts");
    checkNamesAndDefaults(document);
    checkTextureHandlers(document, report);
    print(summaryText(std::move(report)));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::runToItsEnd(combineDocuments, fuzz::textOf(data, size));
    return 0;
}
