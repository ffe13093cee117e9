#include "replay_sdk/ledger.h"

#include <gtest/gtest.h>

namespace metagen::replay {
namespace {

/// The ledger's text without the counts of calls.
std::string summaryOf(const Ledger& ledger) {
    const std::string text = ledger.text();
    return text.substr(0, text.find("calls "));
}

TEST(Ledger, SaysWhenItIsClean) {
    EXPECT_EQ(summaryOf(Ledger()), "clean\nstart-up reference not counted, frame buffer not set\n");
}

TEST(Ledger, CountsEqualFindings) {
    Ledger ledger;
    ledger.noteFinding("unknown handle in getVectorSize");
    ledger.noteFinding("not released: renderer", 2);
    ledger.noteFinding("unknown handle in getVectorSize");
    EXPECT_EQ(summaryOf(ledger),
              "not clean\n"
              "finding 2 not released: renderer\n"
              "finding 2 unknown handle in getVectorSize\n"
              "start-up reference not counted, frame buffer not set\n");
}

TEST(Ledger, TellsTheStartUpCalls) {
    Ledger ledger;
    ledger.countCall(EntryPoint::Qyra_incrementModuleReferenceCounter);
    ledger.noteFrameBuffer(true);
    EXPECT_EQ(summaryOf(ledger), "clean\nstart-up reference counted, frame buffer on\n");
    ledger.noteFrameBuffer(false);
    EXPECT_EQ(summaryOf(ledger), "clean\nstart-up reference counted, frame buffer off\n");
}

TEST(Ledger, TellsWhatWasCreated) {
    Ledger ledger;
    ledger.noteCreated("blocks", 3, 2);
    EXPECT_EQ(summaryOf(ledger),
              "clean\nstart-up reference not counted, frame buffer not set\n"
              "created 3 blocks, released 2\n");
}

TEST(Ledger, CountsTheCallsOfEveryEntryPoint) {
    Ledger ledger;
    ledger.countCall(EntryPoint::getVectorSize);
    ledger.countCall(EntryPoint::getVectorSize);
    const std::string text = ledger.text();
    std::size_t lines = 0;
    for (std::size_t at = text.find("calls "); at != std::string::npos;
         at = text.find("calls ", at + 1))
        ++lines;
    EXPECT_EQ(lines, entryPointCount);
    EXPECT_NE(text.find("\ncalls 2 getVectorSize\ncalls 0 getVectorElement\n"), std::string::npos);
}

}  // namespace
}  // namespace metagen::replay
