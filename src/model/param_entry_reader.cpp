#include "metadata/parameter_type.h"
#include "model/model_reader.h"
#include "support/numeric.h"
#include "support/process_end.h"

namespace metagen {

namespace {

/// Stores the member truncated toward zero when it is a number; otherwise leaves the place alone.
void readNumber(const json::Object& object, const std::string& key, std::int32_t& place) {
    const json::Value* member = json::find(object, key);
    if (member != nullptr && member->is<double>()) place = toInt32(member->get<double>());
}

void readType(const json::Object& object, const std::string& type, ParamEntry& entry) {
    entry.isList = type == "list" ? 1 : 0;
    entry.typeName = &type;
    if (entry.isList == 0) return;
    const json::Value* listType = json::find(object, "listType");
    if (listType != nullptr) entry.typeName = &json::asString(*listType);
}

void readFileBrowser(const json::Object& object, ParamEntry& entry) {
    const json::Value* handler = json::find(object, "handler");
    if (handler == nullptr) return;
    const json::Value* info = json::find(object, "handlerinfo");
    if (info == nullptr || json::asString(*handler) != "FileBrowserHandler") return;
    entry.flags |= param_flag::fileBrowser;
    entry.fileMode = 1;
    const json::Value* loadMode = json::find(json::asObject(*info), "loadMode");
    if (loadMode == nullptr || json::asString(*loadMode) != "1") return;
    entry.flags |= param_flag::loadModeOne;
    entry.fileMode = 2;
}

ScaleCondition readCondition(const json::Object& object) {
    ScaleCondition condition;
    readNumber(object, "op", condition.op);
    const json::Value* ref = json::find(object, "ref");
    if (ref != nullptr && ref->is<std::string>()) condition.ref = json::asString(*ref);
    const json::Value* value = json::find(object, "value");
    if (value != nullptr) condition.value = *value;
    return condition;
}

void readScaling(const json::Object& object, ParamEntry& entry) {
    const json::Value* member = json::find(object, "scaling");
    if (member == nullptr) return;
    const json::Object& scaling = json::asObject(*member);
    readNumber(scaling, "unit", entry.scaleUnit);
    readNumber(scaling, "power", entry.scalePower);
    const json::Value* inverse = json::find(scaling, "inverse");
    if (inverse != nullptr && inverse->is<bool>()) entry.scaleInverse = inverse->get<bool>();
    const json::Value* conditions = json::find(scaling, "conditions");
    if (conditions == nullptr || !conditions->is<json::Array>()) return;
    for (const json::Value& condition : conditions->get<json::Array>()) {
        if (!condition.is<json::Object>()) continue;
        entry.conditions.push_back(readCondition(json::asObject(condition)));
    }
}

void requireKnownType(const std::string& type, const std::string& typeName) {
    if (typeCode(type, typeName) != type_code::unknown) return;
    print("Type: " + type + " converts to an error\n");
    exitWithStatus(failureStatus);
}

}  // namespace

ParamEntry readParamEntry(const json::Object& object, std::uint32_t originFlag) {
    ParamEntry entry;
    entry.flags = originFlag;
    const std::string& type = json::asString(json::at(object, "type"));
    readType(object, type, entry);
    readFileBrowser(object, entry);
    readScaling(object, entry);
    requireKnownType(type, *entry.typeName);
    const json::Value* text = json::find(object, "defaultValue");
    if (text != nullptr) entry.defaultValue = &json::asString(*text);
    return entry;
}

}  // namespace metagen
