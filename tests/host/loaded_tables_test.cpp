#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

#include "comparison.h"
#include "compiled_tables.h"
#include "metagen/host/load.h"

namespace example {
namespace {

std::string fileBytes(const std::string& name) {
    std::ifstream file(HOST_TABLES "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::string handlersBytes = fileBytes("handlers.bin");
const std::string metaBytes = fileBytes("meta.bin");

TEST(LoadedTables, AgreeWithTheCompiledOnes) {
    EXPECT_EQ(differences(compiledHandlers(), loadHandlers(handlersBytes)),
              std::vector<std::string>());
    EXPECT_EQ(differences(compiledMeta(), loadMeta(metaBytes)), std::vector<std::string>());
}

TEST(LoadedTables, HoldWhatTheDocumentHas) {
    const HandlerMeta handlers = loadHandlers(handlersBytes);
    EXPECT_EQ(handlers.version, 2);
    EXPECT_EQ(handlers.plugins.size(), 1U);
    EXPECT_EQ(handlers.plugins.at("Unreadable").handlers.size(), 4U);
    const Meta meta = loadMeta(metaBytes);
    EXPECT_EQ(meta.version, 2);
    EXPECT_EQ(meta.plugins.size(), 5U);
    EXPECT_EQ(meta.plugins.at("Numbers").parameters.size(), 13U);
    EXPECT_EQ(meta.scalingParams.at("Numbers").at("smallest").conditions.size(), 3U);
    EXPECT_EQ(std::get<float>(meta.plugins.at("Numbers").parameters.at("digits").defaultValue),
              0.12345678F);
}

/// The message with which the bytes are refused.
template <typename Load>
std::string refusal(const Load& load, const std::string& bytes) {
    try {
        load(bytes);
    } catch (const BadTable& error) {
        return error.what();
    }
    return "none";
}

TEST(LoadedTables, AreRefusedWhereverTheyAreCut) {
    for (std::size_t length = 0; length < handlersBytes.size(); ++length) {
        EXPECT_NE(refusal(loadHandlers, handlersBytes.substr(0, length)), "none") << length;
    }
    for (std::size_t length = 0; length < metaBytes.size(); ++length) {
        EXPECT_NE(refusal(loadMeta, metaBytes.substr(0, length)), "none") << length;
    }
}

TEST(LoadedTables, AreRefusedWithBytesToSpare) {
    EXPECT_EQ(
        refusal(loadHandlers, handlersBytes + '\0'),
        "at byte " + std::to_string(handlersBytes.size()) + ": the table goes on after its end");
    EXPECT_EQ(refusal(loadMeta, metaBytes + '\0'),
              "at byte " + std::to_string(metaBytes.size()) + ": the table goes on after its end");
}

TEST(LoadedTables, AreRefusedUnderAnotherTag) {
    EXPECT_EQ(refusal(loadHandlers, metaBytes), "at byte 0: the table is no HDLR table");
    EXPECT_EQ(refusal(loadMeta, handlersBytes), "at byte 0: the table is no META table");
    EXPECT_EQ(refusal(loadMeta, ""), "at byte 0: the table is no META table");
}

/// Every change of a byte is refused or shows as a difference, but for a few: those in the last
/// digits of a float.
template <typename Load, typename Tables>
void expectChangesNoticed(const Load& load, const std::string& bytes, const Tables& compiled) {
    std::size_t unnoticed = 0;
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        for (const int change : {1, 0x80, 0xFF}) {
            std::string changed = bytes;
            changed[place] = static_cast<char>(changed[place] ^ change);
            try {
                if (differences(compiled, load(changed)).empty()) ++unnoticed;
            } catch (const BadTable&) {
                continue;
            }
        }
    }
    EXPECT_LT(unnoticed, 3 * bytes.size() / 10);
}

TEST(LoadedTables, ChangedBytesAreNoticed) {
    expectChangesNoticed(loadHandlers, handlersBytes, compiledHandlers());
    expectChangesNoticed(loadMeta, metaBytes, compiledMeta());
}

std::string u32(std::uint32_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
    return bytes;
}

TEST(LoadedTables, ACountBeyondTheirEndTakesNoMemory) {
    const std::string head = "HDLR" + u32(1);
    EXPECT_EQ(refusal(loadHandlers, head + u32(0xFFFFFFFF)), "at byte 8: the table ends too early");
    EXPECT_EQ(refusal(loadHandlers, head + u32(1) + u32(0xFFFFFFFF) + "ABCD"),
              "at byte 12: the table ends too early");
    EXPECT_EQ(
        refusal(loadHandlers, head + u32(1) + u32(0) + u32(1) + u32(0) + u32(1) + u32(0xFFFFFFFF)),
        "at byte 28: the table ends too early");
}

std::string handlerTable(std::uint32_t type, std::uint32_t count) {
    return "HDLR" + u32(1) + u32(1) + u32(0) + u32(1) + u32(0) + u32(type) + u32(count) +
           std::string(4 * count, '\0');
}

TEST(LoadedTables, UnknownHandlersAreRefused) {
    EXPECT_EQ(refusal(loadHandlers, handlerTable(1, 1)), "none");
    EXPECT_EQ(refusal(loadHandlers, handlerTable(2, 3)), "none");
    EXPECT_EQ(refusal(loadHandlers, handlerTable(6, 0)), "none");
    EXPECT_EQ(refusal(loadHandlers, handlerTable(3, 0)),
              "at byte 24: the table names an unknown handler");
    const std::string wrongCount =
        "at byte 28: the table has another count of numbers than its handler";
    EXPECT_EQ(refusal(loadHandlers, handlerTable(1, 3)), wrongCount);
    EXPECT_EQ(refusal(loadHandlers, handlerTable(2, 2)), wrongCount);
    EXPECT_EQ(refusal(loadHandlers, handlerTable(6, 1)), wrongCount);
}

/// One parameter, with what stands behind its type.
std::string parameterTable(std::uint32_t flags, const std::string& defaultValue) {
    return "META" + u32(1) + u32(1) + u32(0) + u32(0) + u32(1) + u32(0) + u32(0) + u32(flags) +
           defaultValue + u32(0) + u32(0) + u32(0);
}

TEST(LoadedTables, UnknownDefaultsAreRefused) {
    EXPECT_EQ(refusal(loadMeta, parameterTable(7, u32(3) + u32(524))), "none");
    EXPECT_EQ(refusal(loadMeta, parameterTable(8, u32(3) + u32(524))),
              "at byte 32: the table has an unknown flag");
    EXPECT_EQ(refusal(loadMeta, parameterTable(0, u32(6) + u32(0))),
              "at byte 36: the table has an unknown kind of default");
    const std::string unknown = "at byte 40: the table has an unknown descriptor";
    EXPECT_EQ(refusal(loadMeta, parameterTable(0, u32(3) + u32(273))), unknown);
    EXPECT_EQ(refusal(loadMeta, parameterTable(0, u32(3) + u32(523))), unknown);
    EXPECT_EQ(refusal(loadMeta, parameterTable(0, u32(4) + u32(521) + u32(0))), unknown);
    EXPECT_EQ(refusal(loadMeta, parameterTable(0, u32(5) + u32(522) + u32(0))), unknown);
}

TEST(LoadedTables, OtherCountsOfNumbersThanTheDescriptorHasAreRefused) {
    const auto floats = [](std::uint32_t descriptor, std::uint32_t count) {
        return refusal(loadMeta, parameterTable(0, u32(5) + u32(descriptor) + u32(count) +
                                                       std::string(4 * count, '\0')));
    };
    const std::string wrongCount =
        "at byte 44: the table has another count of numbers than its descriptor";
    EXPECT_EQ(floats(273, 3), "none");
    EXPECT_EQ(floats(273, 0), "none");
    EXPECT_EQ(floats(273, 6), wrongCount);
    EXPECT_EQ(floats(545, 8), "none");
    EXPECT_EQ(floats(545, 7), wrongCount);
    EXPECT_EQ(floats(577, 18), "none");
    EXPECT_EQ(floats(641, 23), wrongCount);
}

TEST(LoadedTables, NamesThatDoNotAscendAreRefused) {
    const std::string empty = u32(0) + u32(0);  // no category, no parameters
    const auto plugins = [&](const std::string& first, const std::string& second) {
        return refusal(loadMeta, "META" + u32(1) + u32(2) + u32(1) + first + empty + u32(1) +
                                     second + empty + u32(0) + u32(0) + u32(0));
    };
    EXPECT_EQ(plugins("a", "b"), "none");
    EXPECT_EQ(plugins("z", "\xC3"), "none");
    EXPECT_EQ(plugins("b", "a"), "at byte 25: the table has its names out of order");
    EXPECT_EQ(plugins("a", "a"), "at byte 25: the table has its names out of order");
}

/// One scaled parameter, with what stands behind its name.
std::string scalingTable(const std::string& scaling) {
    return "META" + u32(1) + u32(0) + u32(0) + u32(0) + u32(1) + u32(0) + u32(1) + u32(0) + scaling;
}

TEST(LoadedTables, UnknownScalingIsRefused) {
    const std::string plain = u32(1) + u32(1) + '\0';  // unit, power, inverse
    EXPECT_EQ(refusal(loadMeta, scalingTable(plain + u32(0))), "none");
    EXPECT_EQ(refusal(loadMeta, scalingTable(u32(2) + u32(1) + '\0' + u32(0))),
              "at byte 36: the table has an unknown unit");
    EXPECT_EQ(refusal(loadMeta, scalingTable(u32(1) + u32(1) + '\2' + u32(0))),
              "at byte 44: the table has an unknown inverse flag");
    EXPECT_EQ(refusal(loadMeta, scalingTable(plain + u32(1) + u32(0) + u32(2) + u32(265) + u32(0))),
              "at byte 53: the table has an unknown operation");
    EXPECT_EQ(refusal(loadMeta, scalingTable(plain + u32(1) + u32(0) + u32(1) + u32(521) + u32(0))),
              "at byte 57: the table has an unknown type of condition value");
}

}  // namespace
}  // namespace example
