#include "metadata/base_document.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>
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

/// For each name its place among the different ones, in the combined order.
std::vector<std::size_t> placesInOrder(const std::vector<std::string>& names) {
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto less = [&names](std::size_t left, std::size_t right) {
        return CombinedKeyLess()(names[left], names[right]);
    };
    std::ranges::sort(order, less);
    std::vector<std::size_t> places(names.size());
    std::size_t place = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (less(order[i - 1], order[i])) ++place;
        places[order[i]] = place;
    }
    return places;
}

/// Asks about the parameters of one class.
class ParameterReader {
public:
    ParameterReader(const Renderer& sdkRenderer, const std::string& classTypeText)
        : renderer(sdkRenderer), typeText(classTypeText) {}

    void read() {
        const std::vector<std::string> names = renderer.parameterNames(typeText);
        const std::vector<std::size_t> places = placesInOrder(names);
        members.resize(names.size());
        constexpr std::size_t usualLength = 128;
        texts.reserve(names.size() * usualLength);
        for (std::size_t i = 0; i < names.size(); ++i) {
            Range& member = members[places[i]];
            if (member.begin == member.end) member = readMember(names[i]);
        }
    }

    void appendMembers(std::string& out) const {
        out.reserve(out.size() + texts.size() + members.size() + 2);  // commas, and what closes it
        for (const Range& member : members) {
            if (member.begin == member.end) continue;
            if (out.back() != '{') out += ',';
            out.append(texts, member.begin, member.end - member.begin);
        }
    }

    std::optional<std::int32_t> namelessCode;

private:
    /// Of the texts.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    /// Empty for what is not recorded.
    Range readMember(const std::string& name) {
        const Definition definition = renderer.definition(typeText, name);
        if (definition.isNull()) return {};  // a name that is null, or that the SDK doesn't know
        // Asked of every definition, as the SDK's users do; the base document has no place for it.
        static_cast<void>(renderer.gpuSupport(typeText, definition));
        const std::int32_t code = definition.typeCode();
        if (!isRecorded(code)) return {};
        if (!hasTypeName(code)) namelessCode = code;
        const std::size_t begin = texts.size();
        texts += '"';
        texts += name;
        texts += "\":";
        appendObject(definition, code);
        return {begin, texts.size()};
    }

    void appendObject(Definition definition, std::int32_t code) {
        const bool isList = definition.isList();
        texts += isList ? "{\"type\":\"list\",\"listType\":\"" : "{\"type\":\"";
        if (!namelessCode) texts += typeName(code);
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

    /// A list parameter has a default only where that is a list with elements. No default is one
    /// whose text is "" (two double quotes) or none.
    void appendDefault(const QyraValue& value, bool isList) {
        if (isList && elementCount(value) == 0) return;
        defaultText.clear();
        appendDefaultValueText(defaultText, value);
        if (defaultText == "\"\"" || defaultText == "none") return;
        texts += "\",\"defaultValue\":\"";
        appendEscaped(texts, defaultText);
    }

    const Renderer& renderer;
    const std::string& typeText;
    std::string texts;           ///< of all members, in the order in which they were read
    std::vector<Range> members;  ///< by place
    std::string defaultText;     ///< of the parameter at hand
};

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

PluginObject readPluginObject(const Renderer& renderer, const std::string& className) {
    const std::string typeText = renderer.typeText(className);
    ParameterReader parameters(renderer, typeText);
    parameters.read();
    const CategoryResolution category = resolveCategory(renderer.categoryBits(typeText));
    if (category.conflict) endWithConflict(typeText, category.conflictingBits);
    PluginObject object = {.text = "{\"type\":", .namelessCode = parameters.namelessCode};
    if (category.name) {
        object.text.append(1, '"').append(*category.name).append(1, '"');
    } else {
        object.text += "null";
    }
    object.text += ",\"params\":{";
    parameters.appendMembers(object.text);
    object.text += "}}";
    return object;
}

}  // namespace metagen
