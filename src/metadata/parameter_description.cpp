#include "metadata/parameter_description.h"

#include "metadata/default_value_text.h"
#include "metadata/parameter_type.h"

namespace metagen {

namespace {

void fillDefaultText(std::string& buffer, const ParameterRecord& parameter) {
    buffer.clear();
    appendDefaultValueText(buffer, parameter.defaultValue);
}

}  // namespace

ParameterDescription describe(const ParameterRecord& parameter, std::string& buffer) {
    ParameterDescription description;
    if (parameter.isList) {
        description = {.type = "list", .listType = typeName(parameter.code)};
        if (listSize(parameter.defaultValue) == 0) return description;
        fillDefaultText(buffer, parameter);
    } else {
        description.type = typeName(parameter.code);
        fillDefaultText(buffer, parameter);
        if (buffer == "\"\"" || buffer == "none") return description;
    }
    description.defaultText = buffer;
    return description;
}

}  // namespace metagen
