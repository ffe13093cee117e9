// The checks of the merged document: name clashes, default values, and whether parameters, their
// texture handlers and the handlers' user data fit together.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "combine/combine_report.h"
#include "json/value.h"

namespace metagen {

/// The names, in byte order, that the plugin has for a parameter and for user data. Throws the JSON
/// library's type mismatch where one of the two is no object.
std::vector<std::string_view> clashingNames(const json::Value& plugin);

/// Whether a parameter or user data lacks the default value that its list type asks for. Throws the
/// JSON library's type mismatch at a type, list type or default value that is no text.
bool lacksDefault(json::Object entry);

/// Runs both checks below over all plugins of the merged document. When names clash, the process
/// then ends with status -1.
void checkNamesAndDefaults(json::Object document);

/// Prints a line on standard output for each plugin that has a parameter and a user-data entry of
/// the same name. Whether there was any.
bool reportNameClashes(json::Object plugins);

/// Prints a line on standard output for each parameter or user-data entry that has neither a type
/// nor a default value, but a list type whose default values can be read. Entries that have either
/// of them deliberately pass without a look at their values. Throws the JSON library's type
/// mismatch at what is no object where an object belongs, and no text where a text does.
void reportUnexpectedDefaults(json::Object plugins);

enum class HandlerFault : std::uint8_t {
    noHandler,           ///< a parameter has user data for a handler, but none that it names
    missingTextureData,  ///< not all of the data that both handlers share
    notOneValue,         ///< data for a colour and for a float, or for neither
    otherHandler,        ///< the handler doesn't go with the data for a colour or a float
    noMultiplierMode,    ///< the plugin lacks what its handlers share
    noParameter,         ///< user data that look like a handler's, of no parameter
    noValue,             ///< the handler's own data for a colour or a float are missing
};

struct HandlerFailure {
    HandlerFault fault;
    std::string_view parameter;  ///< of the document; of the plugin's own failure empty
    std::string text;            ///< as the summary has it
};

/// What doesn't fit together in one plugin. Throws the JSON library's type mismatch at a parameter
/// with such user data that is no object.
std::vector<HandlerFailure> handlerFailures(std::string_view plugin, json::Object params,
                                            json::Object userData);

/// Records every finding in the report's handler check failures, plugin by plugin. Plugins without
/// user data are not examined. Without "plugins", "Combined Json has no Plugins!" and a line feed
/// on standard output end the process with status 1. Throws the JSON library's type mismatch at
/// what is no object where one belongs.
void checkTextureHandlers(json::Object document, CombineReport& report);

}  // namespace metagen
