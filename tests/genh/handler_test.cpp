#include "genh/handler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/number_text.h"

namespace metagen {
namespace {

ParamEntry paramOf(const std::string& kind, DefaultValue value) {
    ParamEntry param;
    param.typeName = &kind;
    param.defaultValue = std::move(value);
    return param;
}

/// The kind's code and the arguments.
std::string textOf(const std::optional<Handler>& handler) {
    if (!handler) return "none";
    std::string text = std::to_string(static_cast<std::uint32_t>(handler->kind));
    return text + "(" + formatFloatList(handler->arguments()) + ")";
}

std::string floatHandler(DefaultValue value) {
    return textOf(handlerOf(paramOf(handler_kind::floatNumber, std::move(value))));
}

std::string colorHandler(DefaultValue value) {
    return textOf(handlerOf(paramOf(handler_kind::color, std::move(value))));
}

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

TEST(HandlerOf, AFloatIsItsOnlyArgument) {
    EXPECT_EQ(floatHandler(0.5F), "1(0.5f)");
    EXPECT_EQ(floatHandler(0.0F), "1(0.f)");
    EXPECT_EQ(floatHandler(nan), "1(nanf)");
}

TEST(HandlerOf, TheFloatOneIsTheHostsDefault) { EXPECT_EQ(floatHandler(1.0F), "1()"); }

TEST(HandlerOf, AFloatTakesAnyNumber) {
    EXPECT_EQ(floatHandler(7), "1(7.f)");
    EXPECT_EQ(floatHandler(16777217), "1(1.67772e+07f)");
    EXPECT_EQ(floatHandler(0.25), "1(0.25f)");
    EXPECT_EQ(floatHandler(1e300), "1(inff)");
    EXPECT_EQ(floatHandler(true), "1()");
    EXPECT_EQ(floatHandler(false), "1(0.f)");
    EXPECT_EQ(floatHandler(1), "1()");
}

TEST(HandlerOf, AFloatOfAnythingElseIsZero) {
    EXPECT_EQ(floatHandler({}), "1(0.f)");
    const std::string text = "5";
    EXPECT_EQ(floatHandler(&text), "1(0.f)");
    EXPECT_EQ(floatHandler(Color{5, 5, 5}), "1(0.f)");
    EXPECT_EQ(floatHandler(AColor{5, 5, 5, 5}), "1(0.f)");
}

TEST(HandlerOf, AColorHasThreeArgumentsAndNoAlpha) {
    EXPECT_EQ(colorHandler(AColor{0.25F, 0.5F, 1, 0.75F}), "2(0.25f, 0.5f, 1.f)");
    EXPECT_EQ(colorHandler(Color{0.25F, 0.5F, 1}), "2(0.25f, 0.5f, 1.f)");
}

TEST(HandlerOf, AGreyColorHasOneArgument) {
    EXPECT_EQ(colorHandler(AColor{2, 2, 2, 1}), "2(2.f)");
    EXPECT_EQ(colorHandler(AColor{infinity, infinity, infinity, 1}), "2(inff)");
    EXPECT_EQ(colorHandler(AColor{0.0F, -0.0F, 0.0F, 1}), "2(0.f)");
}

TEST(HandlerOf, OneUnequalComponentMakesAColor) {
    EXPECT_EQ(colorHandler(AColor{2, 1, 1, 0}), "2(2.f, 1.f, 1.f)");
    EXPECT_EQ(colorHandler(AColor{1, 2, 1, 0}), "2(1.f, 2.f, 1.f)");
    EXPECT_EQ(colorHandler(AColor{1, 1, 2, 0}), "2(1.f, 1.f, 2.f)");
}

TEST(HandlerOf, TheGreyOneIsTheHostsDefaultWhateverItsAlpha) {
    EXPECT_EQ(colorHandler(AColor{1, 1, 1, 0}), "2()");
    EXPECT_EQ(colorHandler(AColor{1, 1, 1, 0.5F}), "2()");
}

TEST(HandlerOf, NaNIsNeverGrey) {
    EXPECT_EQ(colorHandler(AColor{nan, nan, nan, 1}), "2(nanf, nanf, nanf)");
    EXPECT_EQ(colorHandler(AColor{1, 1, nan, 1}), "2(1.f, 1.f, nanf)");
}

TEST(HandlerOf, AColorOfAnythingElseIsBlack) {
    EXPECT_EQ(colorHandler({}), "2(0.f)");
    EXPECT_EQ(colorHandler(5.0F), "2(0.f)");
    const std::string text = "Color(1,2,3)";
    EXPECT_EQ(colorHandler(&text), "2(0.f)");
}

TEST(HandlerOf, ADuplicateHasNoArguments) {
    EXPECT_EQ(textOf(handlerOf(paramOf(handler_kind::duplicate, 5.0F))), "6()");
}

TEST(HandlerOf, AnyOtherTypeIsNoHandler) {
    const std::string other = "Color";
    EXPECT_EQ(textOf(handlerOf(paramOf(other, 5.0F))), "none");
    EXPECT_EQ(textOf(handlerOf(ParamEntry())), "none");
}

}  // namespace
}  // namespace metagen
