#include "genm/default_record.h"

#include <utility>

#include "genm/source_literal.h"
#include "metadata/parameter_type.h"
#include "support/escaped_text.h"
#include "support/number_text.h"

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
        appendArray(record.descriptor, {record.values.begin(), record.values.end()},
                    array_prefix::integers);
    }
    void operator()(FloatArray&& record) const {
        // Only here do the two tables differ: the binary one has the descriptor all the same.
        if (isUnreadable(record)) return (*this)(std::string_view());
        appendArray(record.descriptor, std::move(record.values), record.prefix);
    }

    void appendArray(const Descriptor* descriptor, std::vector<float> values,
                     std::string_view prefix) const {
        out += descriptor->text;
        out += ", ";
        internValueArray(out, std::move(values), groups, prefix);
    }
};

/// Writes what follows the kind, for a default of each kind.
struct DefaultRecordWriter {
    BinaryBuffer& records;

    void operator()(std::int32_t number) const { records.writeI32(number); }
    void operator()(float number) const { records.writeF32(number); }
    void operator()(std::string_view text) const { records.writeText(text); }
    void operator()(const DescriptorOnly& record) const {
        records.writeU32(record.descriptor->number);
    }
    void operator()(const IntegerArray& record) const { writeArray(record); }
    void operator()(const FloatArray& record) const { writeArray(record); }

    template <typename ValueArray>
    void writeArray(const ValueArray& record) const {
        records.writeU32(record.descriptor->number);
        records.writeCount(record.values.size());
        records.writeBytes(record.values);
    }
};

}  // namespace

DefaultRecord readDefault(const ParamEntry& parameter) {
    const bool isList = parameter.isList == 1;
    const std::int32_t code = typeCode(isList ? "list" : *parameter.typeName, *parameter.typeName);
    const auto* text = std::get_if<const std::string*>(&parameter.defaultValue);
    if (text != nullptr || isList) {
        return readTypedDefault(code, text != nullptr ? *text : nullptr);
    }
    if (code == type_code::integer) return std::int32_t{0};
    return std::string_view();
}

void appendDefault(std::string& out, DefaultRecord record, ValueArrays& groups) {
    std::visit(DefaultTextWriter{out, groups}, std::move(record));
}

void writeDefault(BinaryBuffer& records, const DefaultRecord& record) {
    records.writeU32(static_cast<std::uint32_t>(record.index()));
    std::visit(DefaultRecordWriter{records}, record);
}

}  // namespace metagen
