#include <limits>

#include "metadata/default_value_parser.h"
#include "model/model_reader.h"
#include "support/standard_errors.h"

namespace metagen {

namespace {

/// The user data that stand beside a handler parameter, named after it with a suffix.
class Companions {
public:
    Companions(const json::Object& members, const std::string& parameter)
        : userData(members), name(parameter) {}

    bool has(const char* suffix) const { return userData.contains(name + suffix); }

    const std::string& defaultText(const char* suffix) const {
        const json::Object& entry = json::asObject(json::at(userData, name + suffix));
        return json::asString(json::at(entry, "defaultValue"));
    }

private:
    const json::Object& userData;
    const std::string& name;
};

/// Four fields, three with alpha 0, or a single number for all three with alpha 0.
AColor readColor(const std::string& text) {
    AColor color = {};
    if (parseAColor(text, color)) return color;
    if (parseVector3(text, std::span(color).first<3>())) return {color[0], color[1], color[2], 0};
    const float grey = parseFloat(text);
    return {grey, grey, grey, 0};
}

void keep(ParamEntry& entry, const std::string& kind, DefaultValue value) {
    entry.handlerState = 1;
    entry.typeName = &kind;
    entry.defaultValue = value;
}

void readTextureFrame(const Companions& companions, bool isColor, ParamEntry& entry) {
    const char* valueSuffix = isColor ? "_color" : "_float";
    for (const char* suffix : {"_tex", "_tex_on", "_tex_mult", valueSuffix}) {
        if (!companions.has(suffix)) return;
    }
    const std::string& text = companions.defaultText(valueSuffix);
    if (isColor) {
        keep(entry, handler_kind::color, readColor(text));
    } else {
        keep(entry, handler_kind::floatNumber, parseFloat(text));
    }
}

void readDuplicate(const Companions& companions, ParamEntry& entry) {
    if (!companions.has("_duplicate") || !companions.has("_duplicate_output")) return;
    keep(entry, handler_kind::duplicate, {});
}

}  // namespace

ParamEntry readHandlerEntry(const json::Object& param, const std::string& name,
                            const json::Object& userData) {
    ParamEntry entry;
    entry.handlerState = 0;
    entry.flags = std::numeric_limits<std::uint32_t>::max();
    const json::Value* member = json::find(param, "handler");
    if (member == nullptr) return entry;
    const std::string& handler = json::asString(*member);
    const Companions companions(userData, name);
    if (handler == "ColorTexFrameHandler") readTextureFrame(companions, true, entry);
    if (handler == "FloatTexFrameHandler") readTextureFrame(companions, false, entry);
    if (handler == "DuplicateHandler") readDuplicate(companions, entry);
    return entry;
}

}  // namespace metagen
