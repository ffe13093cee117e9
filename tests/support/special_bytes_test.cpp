#include "support/escapes.h"

#include <gtest/gtest.h>

#include <string>

namespace metagen {
namespace {

template <char... others>
std::ptrdiff_t placeIn(const std::string& text) {
    return findSpecial<others...>(text.data(), text.data() + text.size()) - text.data();
}

TEST(FindSpecial, FindsEveryByteAtEveryPlace) {
    for (std::size_t length = 1; length <= 20; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            for (int code = 0; code < 256; ++code) {
                std::string text(length, 'x');
                text[place] = static_cast<char>(static_cast<unsigned char>(code));
                const bool isSpecial = code < 0x20 || code == '"' || code == '\\';
                EXPECT_EQ((placeIn<'"', '\\'>(text)),
                          static_cast<std::ptrdiff_t>(isSpecial ? place : length))
                    << length << ' ' << place << ' ' << code;
            }
        }
    }
}

TEST(FindSpecial, FindsTheFirstOfSeveral) {
    // Behind a special byte, those around it in value are the likeliest to be taken for one, too.
    for (const char plain : {' ', '!', '#', '[', ']', '\x7e', '\x80', '\xff'}) {
        for (const char special : {'\0', '\x1f', '"', '\\', '\x7f'}) {
            for (std::size_t place = 0; place < 17; ++place) {
                std::string text(17, plain);
                text[place] = special;
                text.back() = special;
                EXPECT_EQ((placeIn<'"', '\\', '\x7f'>(text)), static_cast<std::ptrdiff_t>(place));
            }
        }
    }
}

TEST(FindSpecial, OfNothingIsTheEnd) {
    EXPECT_EQ(placeIn<'"'>(""), 0);
    EXPECT_EQ(findSpecial<'"'>(nullptr, nullptr), nullptr);
}

}  // namespace
}  // namespace metagen
