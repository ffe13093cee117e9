#include "sdk/exceptions.h"

#include <gtest/gtest.h>

namespace {

TEST(QyraException, CarriesItsTextThroughCopies) {
    const Qyra::InitErr original("Cannot load");
    const Qyra::QyraException copy =
        original;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.message(), "Cannot load");
    EXPECT_STREQ(copy.what(), "Cannot load");
}

TEST(QyraException, InstantiationErrAddsTwoCodes) {
    const Qyra::InstantiationErr exception("Instantiation error.", 7, 9);
    EXPECT_EQ(exception.message(), "Instantiation error.");
    EXPECT_EQ(exception.errorCode(), 7U);
    EXPECT_EQ(exception.detailCode(), 9U);
}

TEST(QyraException, OneHandlerCatchesBothKinds) {
    EXPECT_THROW(throw Qyra::InitErr("a"), Qyra::QyraException);
    EXPECT_THROW(throw Qyra::InstantiationErr("a", 0, 0), Qyra::QyraException);
}

}  // namespace
