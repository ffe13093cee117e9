#include "report.h"

#include <cstdio>

#include "description.h"

namespace example {

namespace {

/// The entry of that name; an empty one when there is none.
template <typename Entry>
Entry entryOf(const std::map<std::string, Entry>& entries, const std::string& name) {
    const auto entry = entries.find(name);
    return entry == entries.end() ? Entry() : entry->second;
}

void printRow(const std::string& plugin, const std::string& category, std::size_t parameters,
              std::size_t handlers, std::size_t files, std::size_t scaling) {
    std::printf("%-32s %-18s %10zu %8zu %5zu %7zu\n", plugin.c_str(), category.c_str(), parameters,
                handlers, files, scaling);
}

std::string describeFlags(std::uint32_t flags) {
    std::string text;
    if ((flags & fromUserData) != 0) text += " user data";
    if ((flags & namesInputFile) != 0) return text + " input file";
    if ((flags & namesFile) != 0) text += " file";
    return text;
}

}  // namespace

void printOverview(const HandlerMeta& handlers, const Meta& meta) {
    std::printf("%-32s %-18s %10s %8s %5s %7s\n", "plugin", "category", "parameters", "handlers",
                "files", "scaling");
    std::size_t parameters = 0;
    for (const auto& [name, plugin] : meta.plugins) {
        parameters += plugin.parameters.size();
        printRow(name, plugin.category, plugin.parameters.size(),
                 entryOf(handlers.plugins, name).handlers.size(),
                 entryOf(meta.fileParams, name).size(), entryOf(meta.scalingParams, name).size());
    }
    std::printf("%zu plugins with %zu parameters\n", meta.plugins.size(), parameters);
}

bool printPlugin(const std::string& name, const HandlerMeta& handlers, const Meta& meta) {
    const auto plugin = meta.plugins.find(name);
    if (plugin == meta.plugins.end()) return false;
    std::printf("%s %s\n", plugin->second.category.c_str(), name.c_str());
    for (const auto& [parameter, entry] : plugin->second.parameters) {
        std::printf("    %-28s %-14s %s%s\n", parameter.c_str(), entry.type.c_str(),
                    describe(entry.defaultValue).c_str(), describeFlags(entry.flags).c_str());
    }
    for (const auto& [parameter, handler] : entryOf(handlers.plugins, name).handlers) {
        std::printf("    %s is handled: %s\n", parameter.c_str(), describe(handler).c_str());
    }
    for (const auto& [parameter, scaling] : entryOf(meta.scalingParams, name)) {
        std::printf("    %s scales: %s\n", parameter.c_str(), describe(scaling).c_str());
    }
    return true;
}

}  // namespace example
