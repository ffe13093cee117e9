#include "combine/documents.h"

#include <gtest/gtest.h>

namespace metagen {
namespace {

TEST(ParseLiveDocument, GivesTheDocument) {
    EXPECT_EQ(json::compactText(parseLiveDocument("{\"plugins\":{}}")), "{\"plugins\":{}}");
}

TEST(ParseLiveDocumentDeathTest, EndsTheProcessForATextThatDoesNotParse) {
    EXPECT_EXIT(parseLiveDocument("{\"plugins\":{\"a\"b\":{}}}"), testing::ExitedWithCode(1),
                "^error in the dumped json$");
}

TEST(ObjectOrExit, GivesTheMembers) {
    json::Value object{json::Object()};
    EXPECT_EQ(&strippedObjectOrExit(object), &object.get<json::Object>());
    EXPECT_EQ(&liveObjectOrExit(object), &object.get<json::Object>());
}

TEST(ObjectOrExitDeathTest, EndsTheProcessForAnyOtherKind) {
    json::Value array{json::Array()};
    EXPECT_EXIT(strippedObjectOrExit(array), testing::ExitedWithCode(1),
                "^stripped json is not an object$");
    EXPECT_EXIT(liveObjectOrExit(array), testing::ExitedWithCode(1),
                "^dumped json is not an object$");
}

}  // namespace
}  // namespace metagen
