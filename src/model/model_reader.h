// Reads the model of a combined document, once for both generators. Whatever does not fit either
// is passed over, or ends the reading: a member of the wrong kind throws the JSON library's error
// (std::runtime_error, see json::asObject), a missing one std::out_of_range (see json::at).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/combined_model.h"
#include "support/json.h"

namespace metagen {

/// Reads the plugins of a document. "meta" takes every plugin with all its parameters and user
/// data, "handler" only plugins that have handler parameters; any other mode gives an empty model.
/// The model borrows from the plugins.
CombinedModel readCombinedModel(const json::Object& plugins, std::string_view mode);

/// Reads one plugin, its value an object, in the same modes.
PluginEntry readPluginEntry(const json::Value& plugin, std::string_view mode);

/// Reads a parameter or user data object for "meta". The origin flag is 0 or
/// param_flag::fromUserData. A type outside the vocabulary prints "Type: ", the type and
/// " converts to an error" on standard output and ends the process with status 1.
ParamEntry readParamEntry(const json::Object& object, std::uint32_t originFlag);

/// Reads a parameter for "handler", with the user data of its plugin. The entry is to be kept
/// only when its handlerState is 1; it then has a kind of handler_kind and, but for a duplicate,
/// a default: an AColor or a float. A default text that is no number throws
/// std::invalid_argument or std::out_of_range (see parseFloat).
ParamEntry readHandlerEntry(const json::Object& param, const std::string& name,
                            const json::Object& userData);

}  // namespace metagen
