#include "benchmarks/documents/base_writer.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

#include "benchmarks/documents/document_text.h"

namespace metagen::invented {

namespace {

/// Names of this purpose do not meet those that the SDK throws dice for itself.
constexpr std::uint64_t ofRevision = 100;

/// Members of an object: the key's place in the order, the key, and the value.
struct Member {
    std::string folded;
    std::string key;
    std::string value;
};

/// Documents list keys without regard to case, "_" as "."; invented names are told apart by that,
/// and none of them is "type", which would come first.
std::string foldedKey(const std::string& key) {
    std::string folded = key;
    for (char& character : folded) {
        const int lower = std::tolower(static_cast<unsigned char>(character));
        character = character == '_' ? '.' : static_cast<char>(lower);
    }
    return folded;
}

Member member(std::string key, std::string value) {
    std::string folded = foldedKey(key);
    return {std::move(folded), std::move(key), std::move(value)};
}

std::string objectText(std::vector<Member> members) {
    std::ranges::sort(members, {}, &Member::folded);
    std::string text = "{";
    const char* separator = "";
    for (const Member& each : members) {
        text += separator;
        text += '"' + each.key + "\":";
        text += each.value;
        separator = ",";
    }
    return text + '}';
}

std::string parameterText(const InventedParameter& parameter) {
    const std::string type = quoted(typeNameOf(parameter.typeCode));
    std::string text =
        parameter.isList ? R"({"type":"list","listType":)" + type : "{\"type\":" + type;
    if (const auto defaultText = defaultTextOf(parameter))
        text += ",\"defaultValue\":" + quoted(*defaultText);
    return text + '}';
}

std::string classText(const Category& category, std::vector<Member> parameters) {
    const std::string type = category.name.empty() ? "null" : quoted(category.name);
    return "{\"type\":" + type + ",\"params\":" + objectText(std::move(parameters)) + '}';
}

void addParameter(const InventedSdk& sdk, std::size_t number, std::vector<Member>& parameters) {
    parameters.push_back(member(sdk.parameterName(number), parameterText(sdk.parameter(number))));
}

void addRevisedParameter(const InventedSdk& sdk, std::size_t number,
                         std::vector<Member>& parameters) {
    Dice dice = sdk.dice(ofRevision, number);
    if (!dice.inThousand(30)) {
        addParameter(sdk, number, parameters);
        return;
    }
    const std::string later = parameterText(inventParameter(sdk.dice(ofRevision + 1, number)));
    const std::string name = sdk.parameterName(number);
    switch (dice.below(4)) {
        case 0: break;
        case 1:
            addParameter(sdk, number, parameters);
            parameters.push_back(member(name + "_legacy", later));
            break;
        default: parameters.push_back(member(name, later)); break;
    }
}

template <typename AddParameter>
Member classMember(const InventedSdk& sdk, std::size_t number, std::string name,
                   const AddParameter& addOne) {
    std::vector<Member> parameters;
    const std::size_t end = sdk.firstParameter(number + 1);
    for (std::size_t each = sdk.firstParameter(number); each < end; ++each)
        addOne(sdk, each, parameters);
    return member(std::move(name), classText(sdk.category(number), std::move(parameters)));
}

std::string documentText(std::vector<Member> classes) {
    return "{\"plugins\":" + objectText(std::move(classes)) + '}';
}

}  // namespace

std::string baseDocument(const InventedSdk& sdk) {
    std::vector<Member> classes;
    for (std::size_t number = 0; number < sdk.classCount(); ++number)
        classes.push_back(classMember(sdk, number, sdk.className(number), addParameter));
    return documentText(std::move(classes));
}

std::string revisedDocument(const InventedSdk& sdk) {
    std::vector<Member> classes;
    for (std::size_t number = 0; number < sdk.classCount(); ++number) {
        Dice dice = sdk.dice(ofRevision + 2, number);
        std::string name = sdk.className(number);
        if (dice.inThousand(4)) name += "Ex";
        classes.push_back(classMember(sdk, number, std::move(name), addRevisedParameter));
    }
    return documentText(std::move(classes));
}

}  // namespace metagen::invented
