#include "genm/tables.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "genm/table_bytes.h"
#include "model/reading.h"
#include "support/exit_status.h"

namespace metagen {
namespace {

std::string source(const MetaModel& model) {
    std::string out;
    appendScalingTable(out, collectScalingTable(model), model);
    return out;
}

std::string bytes(const MetaModel& model) {
    std::string records;
    appendScalingRecords(records, collectScalingTable(model), model);
    return records;
}

/// A plugin "Light" with a float parameter "size" that scales as given, and others that conditions
/// may name.
ReadModel light(const std::string& scaling) {
    return ReadModel("{'Light': {'params': {'size': {'type': 'float', 'scaling': " + scaling +
                     "}, 'mode': {'type': 'integer'}, 'on': {'type': 'bool'},"
                     " 'level': {'type': 'float'}, 'tint': {'type': 'color'},"
                     " 'map': {'type': 'float texture'}, 'exact': {'type': 'double'},"
                     " 'modes': {'type': 'list', 'listType': 'integer'}},"
                     " 'userData': {'extra': {'type': 'integer'}}}}");
}

ReadModel lightWith(const std::string& condition) {
    return light("{'unit': 1, 'conditions': [" + condition + "]}");
}

/// The table of `light` as text, around what differs.
std::string lightSource(const std::string& size) {
    return "m.scalingParams = {\n\t{ \"Light\", {\n\t\t{ \"size\", " + size + " }\n\t}}\n};\n";
}

std::string conditionSource(const std::string& condition) {
    return "m.scalingParams = {\n\t{ \"Light\", {\n\t\t{ \"size\", "
           "{ Scaling::UnitType::Scene, 1, false, {\n\t\t\t" +
           condition + "\n\t\t}}}\n\t}}\n};\n";
}

/// The same in the binary table.
std::string lightBytes(std::int32_t unit, std::int32_t power, char inverse,
                       const std::string& conditions) {
    return u32(1) + text("Light") + u32(1) + text("size") + i32(unit) + i32(power) + inverse +
           conditions;
}

std::string conditionBytes(const std::string& condition) {
    return lightBytes(1, 1, 0, u32(1) + condition);
}

TEST(ScalingTable, IsNothingWithoutScalingParameters) {
    const ReadModel model(
        "{'A': {}, 'B': {'params': {'a': {'type': 'float'}, 'b':"
        " {'type': 'float', 'scaling': {'unit': 0, 'power': 3}}}}}");
    EXPECT_EQ(source(model), "");
    EXPECT_EQ(bytes(model), u32(0));
}

TEST(ScalingTable, UnitAlone) {
    EXPECT_EQ(source(light("{'unit': 1}")), lightSource("{}"));
    EXPECT_EQ(bytes(light("{'unit': 1}")), lightBytes(1, 1, 0, u32(0)));
}

TEST(ScalingTable, Power) {
    const ReadModel model = light("{'unit': 1, 'power': 2}");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n"
              "\t{ \"Light\", {\n"
              "\t\t{ \"size\", { Scaling::UnitType::Scene, 2, {} }}\n"
              "\t}}\n"
              "};\n");
    EXPECT_EQ(bytes(model), lightBytes(1, 2, 0, u32(0)));
}

TEST(ScalingTable, NegativePower) {
    const ReadModel model = light("{'unit': 1, 'power': -1.5}");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n\t{ \"Light\", {\n\t\t{ \"size\", "
              "{ Scaling::UnitType::Scene, -1, {} }}\n\t}}\n};\n");
    EXPECT_EQ(bytes(model), lightBytes(1, -1, 0, u32(0)));
}

TEST(ScalingTable, InverseWritesThePowerToo) {
    const ReadModel model = light("{'unit': 1, 'inverse': true}");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n\t{ \"Light\", {\n\t\t{ \"size\", "
              "{ Scaling::UnitType::Scene, 1, true, {} }}\n\t}}\n};\n");
    EXPECT_EQ(bytes(model), lightBytes(1, 1, 1, u32(0)));
}

TEST(ScalingTable, ConditionsWritePowerAndFlagToo) {
    const ReadModel model = lightWith("{'op': 1, 'ref': 'mode', 'value': 3}");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n"
              "\t{ \"Light\", {\n"
              "\t\t{ \"size\", { Scaling::UnitType::Scene, 1, false, {\n"
              "\t\t\t{ \"mode\", Scaling::Operation::Equals, 3 }\n"
              "\t\t}}}\n"
              "\t}}\n"
              "};\n");
    EXPECT_EQ(bytes(model),
              lightBytes(1, 1, 0, u32(1) + text("mode") + i32(1) + u32(266) + i32(3)));
}

TEST(ScalingTable, SeveralConditionsParametersAndPlugins) {
    const ReadModel model(
        "{'B': {'params': {'y': {'type': 'float', 'scaling': {'unit': 1, 'power': 3}},"
        " 'x': {'type': 'float', 'scaling': {'unit': 1, 'power': 2, 'inverse': true,"
        " 'conditions': [{'op': 1, 'ref': 'y', 'value': 0.5}, {'op': 1, 'ref': 'y',"
        " 'value': 2}]}}}}, 'A': {'userData': {'z': {'type': 'float', 'scaling': {'unit': 1}}}}}");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n"
              "\t{ \"A\", {\n"
              "\t\t{ \"z\", {} }\n"
              "\t}},\n"
              "\t{ \"B\", {\n"
              "\t\t{ \"x\", { Scaling::UnitType::Scene, 2, true, {\n"
              "\t\t\t{ \"y\", Scaling::Operation::Equals, 0.5f },\n"
              "\t\t\t{ \"y\", Scaling::Operation::Equals, 2.f }\n"
              "\t\t}}},\n"
              "\t\t{ \"y\", { Scaling::UnitType::Scene, 3, {} }}\n"
              "\t}}\n"
              "};\n");
    EXPECT_EQ(bytes(model), u32(2) + text("A") + u32(1) + text("z") + i32(1) + i32(1) + '\0' +
                                u32(0) + text("B") + u32(2) + text("x") + i32(1) + i32(2) + '\1' +
                                u32(2) + text("y") + i32(1) + u32(265) + f32(0.5F) + text("y") +
                                i32(1) + u32(265) + f32(2) + text("y") + i32(1) + i32(3) + '\0' +
                                u32(0));
}

TEST(ScalingTable, NamesAreNotEscaped) {
    const ReadModel model(
        R"({'A\"': {'params': {'b\\\n': {'type': 'float', 'scaling':)"
        R"( {'unit': 1, 'conditions': [{'op': 1, 'ref': 'b\\\n', 'value': 1}]}}}}})");
    EXPECT_EQ(source(model),
              "m.scalingParams = {\n"
              "\t{ \"A\"\", {\n"
              "\t\t{ \"b\\\n\", { Scaling::UnitType::Scene, 1, false, {\n"
              "\t\t\t{ \"b\\\n\", Scaling::Operation::Equals, 1.f }\n"
              "\t\t}}}\n"
              "\t}}\n"
              "};\n");
}

TEST(ScalingTable, APluginsNameEndsAtItsFirstNul) {
    const ReadModel model(
        "{'A\\u0000x': {'params': {'a': {'type': 'float', 'scaling': {'unit': 1}}}}}");
    EXPECT_EQ(source(model), "m.scalingParams = {\n\t{ \"A\", {\n\t\t{ \"a\", {} }\n\t}}\n};\n");
    EXPECT_EQ(bytes(model),
              u32(1) + text("A") + u32(1) + text("a") + i32(1) + i32(1) + '\0' + u32(0));
}

TEST(ScalingTable, PluginsWhoseNamesAreCutToOneShareItAndTheFirstParameterStays) {
    const ReadModel model(
        "{'A': {'params': {'b': {'type': 'float', 'scaling': {'unit': 1}}}}, 'A\\u0000x': "
        "{'params':"
        " {'a': {'type': 'float', 'scaling': {'unit': 1}},"
        " 'b': {'type': 'float', 'scaling': {'unit': 1, 'power': 2}}}}}");
    EXPECT_EQ(
        source(model),
        "m.scalingParams = {\n\t{ \"A\", {\n\t\t{ \"a\", {} },\n\t\t{ \"b\", {} }\n\t}}\n};\n");
}

TEST(ScalingCondition, FloatValues) {
    const auto withValue = [](const std::string& value) {
        return lightWith("{'op': 1, 'ref': 'level', 'value': " + value + "}");
    };
    EXPECT_EQ(source(withValue("0.1234567")),
              conditionSource("{ \"level\", Scaling::Operation::Equals, 0.123457f }"));
    EXPECT_EQ(bytes(withValue("0.1234567")),
              conditionBytes(text("level") + i32(1) + u32(265) + f32(0.1234567F)));
    EXPECT_EQ(source(withValue("1e300")),
              conditionSource("{ \"level\", Scaling::Operation::Equals, inff }"));
    EXPECT_EQ(bytes(withValue("1e300")),
              conditionBytes(text("level") + i32(1) + u32(265) + u32(0x7F800000)));
}

TEST(ScalingCondition, IntegerAndBoolValuesAreTruncated) {
    const auto withValue = [](const std::string& name, const std::string& value) {
        return lightWith("{'op': 1, 'ref': '" + name + "', 'value': " + value + "}");
    };
    for (const std::string name : {"mode", "on", "extra"}) {
        EXPECT_EQ(source(withValue(name, "-2.9")),
                  conditionSource("{ \"" + name + "\", Scaling::Operation::Equals, -2 }"));
        EXPECT_EQ(bytes(withValue(name, "-2.9")),
                  conditionBytes(text(name) + i32(1) + u32(266) + i32(-2)));
    }
    for (const std::string value : {"-2147483648", "3000000000", "-1e20"}) {
        EXPECT_EQ(source(withValue("mode", value)),
                  conditionSource("{ \"mode\", Scaling::Operation::Equals, INT_MIN }"));
        EXPECT_EQ(bytes(withValue("mode", value)),
                  conditionBytes(text("mode") + i32(1) + u32(266) + u32(0x80000000)));
    }
}

TEST(ScalingCondition, AValueThatIsNoNumberIsLeftOut) {
    for (const std::string value : {"'2'", "true", "null", "[2]"}) {
        const ReadModel model = lightWith("{'op': 1, 'ref': 'mode', 'value': " + value + "}");
        EXPECT_EQ(source(model), conditionSource("{ \"mode\", Scaling::Operation::Equals,  }"));
        EXPECT_EQ(bytes(model), conditionBytes(text("mode") + i32(1) + u32(266)));
    }
    EXPECT_EQ(bytes(lightWith("{'op': 1, 'ref': 'level'}")),
              conditionBytes(text("level") + i32(1) + u32(265)));
}

TEST(ScalingCondition, TheBinaryTableTakesAnyUnitAndOperation) {
    EXPECT_EQ(bytes(light("{'unit': 2, 'conditions': [{'op': 7, 'ref': 'mode', 'value': 1}]}")),
              lightBytes(2, 1, 0, u32(1) + text("mode") + i32(7) + u32(266) + i32(1)));
}

TEST(ScalingCondition, AnUnknownParameterThrows) {
    for (const char* condition :
         {"{'op': 1, 'ref': 'nothing', 'value': 1}", "{'op': 1}", "{'ref': 'nothing'}"}) {
        EXPECT_EQ(messageOf<std::out_of_range>([&] { bytes(lightWith(condition)); }),
                  missingMessage);
    }
    EXPECT_EQ(messageOf<std::out_of_range>([] { source(lightWith("{'op': 1}")); }), missingMessage);
}

TEST(ScalingCondition, OfAPluginWhoseNameIsCutThrows) {
    const ReadModel model(
        "{'A\\u0000': {'params': {'a': {'type': 'float', 'scaling':"
        " {'unit': 1, 'conditions': [{'op': 1, 'ref': 'a'}]}}}}}");
    EXPECT_EQ(messageOf<std::out_of_range>([&] { bytes(model); }), missingMessage);
}

TEST(ScalingConditionDeathTest, RefusesListsAndOtherTypes) {
    for (const std::string name : {"modes", "tint", "map", "exact"}) {
        EXPECT_EXIT(bytes(lightWith("{'op': 1, 'ref': '" + name + "', 'value': 1}")),
                    isBrokenMetadata, "^$")
            << name;
        EXPECT_EXIT(bytes(lightWith("{'op': 1, 'ref': '" + name + "'}")), isBrokenMetadata, "^$")
            << name;
    }
}

TEST(ScalingTableDeathTest, TheTextRefusesOtherUnitsAndOperations) {
    EXPECT_EXIT(source(light("{'unit': 2}")), isBrokenMetadata, "^$");
    EXPECT_EXIT(source(light("{'unit': -1}")), isBrokenMetadata, "^$");
    EXPECT_EXIT(source(lightWith("{'op': 2, 'ref': 'mode', 'value': 1}")), isBrokenMetadata, "^$");
    EXPECT_EXIT(source(lightWith("{'ref': 'mode', 'value': 1}")), isBrokenMetadata, "^$");
}

}  // namespace
}  // namespace metagen
