#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "metagen/host/load.h"

namespace metagen::host {
namespace {

/// Damages tables, the same way in every run.
class Damage {
public:
    /// One to three changes.
    std::string damaged(std::string bytes) {
        for (std::size_t changes = 1 + below(3); changes > 0; --changes) change(bytes);
        return bytes;
    }

private:
    std::size_t below(std::size_t bound) { return random() % bound; }

    void change(std::string& bytes) {
        const std::size_t place = below(bytes.size());
        const std::size_t size = std::min(1 + below(16), bytes.size() - place);
        switch (below(6)) {
            case 0: bytes.resize(std::max<std::size_t>(place, 1)); break;
            case 1: bytes.insert(place, bytes.substr(below(bytes.size()), size)); break;
            case 2: bytes.erase(place, std::min(size, bytes.size() - 1)); break;
            case 3: bytes[place] = static_cast<char>(bytes[place] ^ (1 << below(8))); break;
            case 4: bytes[place] = static_cast<char>(below(256)); break;
            default: bytes.replace(place, std::min<std::size_t>(size, 4), numbers[below(5)], 4);
        }
    }

    static constexpr const char* numbers[] = {"\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\x7F", "\0\0\0\x80",
                                              "\0\0\0\0", "\xFF\0\0\0"};
    std::mt19937 random{20261121};
};

enum class Outcome { loaded, refused };

template <typename Load>
Outcome outcomeOf(const Load& load, const std::string& bytes) {
    try {
        static_cast<void>(load(bytes));
        return Outcome::loaded;
    } catch (const BadTable& error) {
        EXPECT_LE(error.byte, bytes.size());
        const std::string place = "at byte " + std::to_string(error.byte) + ": the table ";
        EXPECT_EQ(std::string(error.what()).substr(0, place.size()), place);
        return Outcome::refused;
    }
}

/// How many of 5,000 damaged tables are refused; the others can be loaded.
template <typename Load>
std::size_t refusals(const Load& load, const std::string& name) {
    const std::string table = readFile(HOST_TABLES "/" + name);
    Damage damage;
    std::size_t count = 0;
    for (int run = 0; run < 5000; ++run) {
        if (outcomeOf(load, damage.damaged(table)) == Outcome::refused) ++count;
    }
    return count;
}

// Some damage can't be told from a table: another letter of a text, another number.
TEST(DamagedTables, AreLoadedOrRefusedWithAPlace) {
    const std::size_t handlers = refusals(loadHandlers, "handlers.bin");
    EXPECT_GT(handlers, 3500U);
    EXPECT_LT(handlers, 5000U);
    const std::size_t meta = refusals(loadMeta, "meta.bin");
    EXPECT_GT(meta, 3500U);
    EXPECT_LT(meta, 5000U);
}

}  // namespace
}  // namespace metagen::host
