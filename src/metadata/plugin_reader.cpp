#include "metadata/base_document.h"

#include <string_view>
#include <vector>

#include "metadata/default_value_text.h"
#include "metadata/key_order.h"
#include "sdk/parameter_type.h"
#include "support/end_run.h"
#include "support/escapes.h"

namespace metagen {

namespace {

/// Not what the SDK lists among the parameters although no host can set it, nor what has no type.
bool isRecorded(std::int32_t code) {
    constexpr std::int32_t firstUnset = 1000;
    constexpr std::int32_t lastUnset = 1005;
    return (code < firstUnset || code > lastUnset) && code != type_code::unspecified;
}

[[noreturn]] void endWithConflict(const std::string& typeText, std::uint32_t bits) {
    std::string message = "Plugin type: " + typeText + " has multiple incompatible categories:\n";
    for (int code = 0; code < 32; ++code) {
        if ((bits >> static_cast<unsigned>(code) & 1U) == 0) continue;
        message += '\t';
        message += categoryName(code).value_or("");
        message += '\n';
    }
    endRun(failureStatus, message);
}

}  // namespace

std::string_view PluginReader::read(const std::string& className) {
    typeText = renderer.typeText(className);
    nameless.reset();
    readParameters();
    object = "{\"type\":";
    appendCategory();
    object += ",\"params\":{";
    object.reserve(object.size() + texts.size() + members.size() + 2);  // commas and the end
    for (const Range& member : members) {
        if (member.isEmpty()) continue;
        if (object.back() != '{') object += ',';
        object.append(texts, member.begin, member.end - member.begin);
    }
    object += "}}";
    return object;
}

void PluginReader::readParameters() {
    const std::vector<std::string> names = renderer.parameterNames(typeText);
    const std::vector<std::size_t> places = placesInOrder(names);
    texts.clear();
    members.assign(names.size(), {});
    for (std::size_t i = 0; i < names.size(); ++i) {
        Range& member = members[places[i]];
        if (member.isEmpty()) member = readMember(names[i]);
    }
}

PluginReader::Range PluginReader::readMember(const std::string& name) {
    const Definition definition = renderer.definition(typeText, name);
    if (definition.isNull()) return {};  // a name that is null, or that the SDK doesn't know
    // Asked of every definition, as the SDK's users do; the base document has no place for it.
    static_cast<void>(renderer.gpuSupport(typeText, definition));
    const std::int32_t code = definition.typeCode();
    if (!isRecorded(code)) return {};
    if (!hasTypeName(code)) nameless = code;
    const std::size_t begin = texts.size();
    texts += '"';
    texts += name;
    texts += "\":";
    appendParameter(definition, code);
    return {begin, texts.size()};
}

void PluginReader::appendParameter(Definition definition, std::int32_t code) {
    const bool isList = definition.isList();
    texts += isList ? "{\"type\":\"list\",\"listType\":\"" : "{\"type\":\"";
    if (!nameless) texts += typeName(code);
    if (definition.hasDefaultGuide()) {
        const Definition::Guide guide = definition.defaultGuide();
        appendDefault(valueOfGuide(code, guide.number, {guide.sequence.get(), guide.count}),
                      isList);
    } else {
        SdkValue value;
        definition.readDefault(value);
        appendDefault(value.raw, isList);
    }
    texts += "\"}";
}

/// A list parameter has a default only where that is a list with elements. No default is one whose
/// text is "" (two double quotes) or none.
void PluginReader::appendDefault(const QyraValue& value, bool isList) {
    if (isList && elementCount(value) == 0) return;
    defaultText.clear();
    appendDefaultValueText(defaultText, value);
    if (defaultText == "\"\"" || defaultText == "none") return;
    texts += "\",\"defaultValue\":\"";
    appendEscaped(texts, defaultText);
}

void PluginReader::appendCategory() {
    const CategoryResolution category = resolveCategory(renderer.categoryBits(typeText));
    if (category.conflict) endWithConflict(typeText, category.conflictingBits);
    if (category.name) {
        object.append(1, '"').append(*category.name).append(1, '"');
    } else {
        object += "null";
    }
}

}  // namespace metagen
