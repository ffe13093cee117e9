// A catalogue in memory: everything that the replay SDK can be asked, as it was read from JSON.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "replay_sdk/answer_source.h"

namespace metagen::replay {

/// A text vector as the catalogue tells it: the names that it has, in their order.
struct NameList {
    enum class Form {
        everything,  ///< all there is, ascending
        given,       ///< exactly the names of the list, some perhaps null or twice there
        null         ///< a null vector
    };
    Form form = Form::everything;
    std::vector<Text> names;
};

struct Parameter {
    std::string name;
    ParameterFacts facts;
    DefaultValue defaultValue;
    std::unique_ptr<Guide> guide;  ///< null when it carries none
};

struct PluginClass {
    std::string name;
    std::string typeText;  ///< by which the queries name it
    std::int64_t typeId = 0;
    std::uint64_t categories = 0;
    NameList parameterNames;
    std::size_t firstParameter = 0;  ///< in Catalogue::parameters, ascending by name from there
    std::size_t parameterCount = 0;
};

class Catalogue {
public:
    /// Nothing when renderers can be created.
    std::optional<std::int32_t> rendererErrorCode;
    NameList classNames;
    std::vector<PluginClass> classes;  ///< ascending by name
    std::vector<Parameter> parameters;
    std::unordered_map<std::int64_t, PluginInstance> instances;  ///< by id

    /// The look-ups give null for what the catalogue doesn't know.
    const PluginClass* classNamed(std::string_view name) const;
    const PluginClass* classOfTypeText(std::string_view typeText) const;
    const PluginClass* classOfTypeId(std::int64_t typeId) const;
    const Parameter* parameterNamed(const PluginClass& owner, std::string_view name) const;

    /// Makes the class known by its type text and type id, once `classes` has all its elements.
    /// Null on success, else the class that has the text or id already.
    const PluginClass* indexTypeText(const PluginClass& added);
    const PluginClass* indexTypeId(const PluginClass& added);

private:
    std::unordered_map<std::string_view, const PluginClass*> byTypeText;
    std::unordered_map<std::int64_t, const PluginClass*> byTypeId;
};

}  // namespace metagen::replay
