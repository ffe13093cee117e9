#include "genm/default_record.h"

#include "model/binary_table.h"
#include "sdk/parameter_type.h"
#include "support/escapes.h"
#include "support/numbers.h"

namespace metagen {

namespace {

bool isUnreadable(const FloatArray& record) {
    return record.values.empty() && !isList(*record.descriptor);
}

/// Appends a default of each kind.
struct DefaultTextWriter {
    std::string& out;
    ValueArrays& groups;

    void operator()(std::int32_t number) const { appendIntegerLiteral(out, number); }
    void operator()(float number) const { appendFloatLiteral(out, number); }
    void operator()(std::string_view text) const {
        out += '"';
        appendEscaped(out, text);
        out += '"';
    }
    void operator()(const DescriptorOnly& record) const { out += record.descriptor->text; }
    void operator()(const IntegerArray& record) const {
        const std::vector<float> values(record.values.begin(), record.values.end());
        appendArray(record.descriptor, values, array_prefix::integers);
    }
    void operator()(const FloatArray& record) const {
        // Only here do the two tables differ: the binary one has the descriptor all the same.
        if (isUnreadable(record)) return (*this)(std::string_view());
        appendArray(record.descriptor, record.values, record.prefix);
    }

    void appendArray(const Descriptor* descriptor, std::span<const float> values,
                     std::string_view prefix) const {
        out += descriptor->text;
        out += ", ";
        internValueArray(out, values, groups, prefix);
    }
};

/// Appends what follows the kind, for a default of each kind.
struct DefaultRecordWriter {
    std::string& records;

    void operator()(std::int32_t number) const { appendI32(records, number); }
    void operator()(float number) const { appendF32(records, number); }
    void operator()(std::string_view text) const { appendText(records, text); }
    void operator()(const DescriptorOnly& record) const {
        appendU32(records, record.descriptor->number);
    }
    void operator()(const auto& array) const {
        appendU32(records, array.descriptor->number);
        appendCount(records, array.values.size());
        appendNumbers(records, array.values);
    }
};

}  // namespace

DefaultRecord readDefault(const MetaParameter& parameter, DefaultValues& values) {
    if (parameter.defaultText || isListCode(parameter.code)) {
        return readTypedDefault(parameter.code, parameter.defaultText, values);
    }
    if (parameter.code == type_code::integer) return std::int32_t{0};
    return std::string_view();
}

void appendDefault(std::string& out, const DefaultRecord& record, ValueArrays& groups) {
    std::visit(DefaultTextWriter{out, groups}, record);
}

void appendDefaultRecord(std::string& records, const DefaultRecord& record) {
    appendU32(records, static_cast<std::uint32_t>(record.index()));
    std::visit(DefaultRecordWriter{records}, record);
}

}  // namespace metagen
