#include "genm/scaling_condition.h"

#include "genm/descriptor.h"
#include "genm/source_literal.h"
#include "genm/stop.h"
#include "metadata/parameter_type.h"
#include "support/number_text.h"
#include "support/numeric.h"

namespace metagen {

namespace {

constexpr std::int32_t equalsOperation = 1;

/// The descriptor of the condition's value, checked whether or not the document gives one.
std::uint32_t valueDescriptor(const ScaleCondition& condition, const CombinedModel& model,
                              std::string_view plugin) {
    const ParamEntry& parameter = at(at(model, plugin).params, condition.ref);
    if (parameter.isList == 1) stop("Error: Scalling conditions do not support list types\n");
    switch (typeCode(*parameter.typeName, {})) {
        case type_code::floatNumber: return singleFloatDescriptor;
        case type_code::integer:
        case type_code::boolean: return singleIntegerDescriptor;
        default: stop("Error: Scalling conditions unsuported value type\n");
    }
}

}  // namespace

// A value that is no number leaves its place empty, in both tables: deliberate, although a reader
// of the binary one can't tell.
void writeCondition(BinaryFile& file, const ScaleCondition& condition, const CombinedModel& model,
                    std::string_view plugin) {
    const std::uint32_t descriptor = valueDescriptor(condition, model, plugin);
    file.writeText(condition.ref);
    file.writeI32(condition.op);
    file.writeU32(descriptor);
    if (!condition.value.is<double>()) return;
    const double value = condition.value.get<double>();
    if (descriptor == singleFloatDescriptor) {
        file.writeF32(toFloat(value));
    } else {
        file.writeI32(toInt32(value));
    }
}

void appendCondition(std::string& out, const ScaleCondition& condition, const CombinedModel& model,
                     std::string_view plugin) {
    if (condition.op != equalsOperation) {
        stop("Error: Unsupported scalling condiiton operation type\n");
    }
    const std::uint32_t descriptor = valueDescriptor(condition, model, plugin);
    out += "{ \"";
    out += condition.ref;
    out += "\", Scaling::Operation::Equals, ";
    if (condition.value.is<double>()) {
        const double value = condition.value.get<double>();
        if (descriptor == singleFloatDescriptor) {
            appendFloatLiteral(out, toFloat(value));
        } else {
            appendIntegerLiteral(out, toInt32(value));
        }
    }
    out += " }";
}

}  // namespace metagen
