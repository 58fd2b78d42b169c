// SPDX-License-Identifier: MIT
#include "library/RecordingHistory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "core/MacroManager.h"
#include "engine/EngineTest.h"

namespace {

using Titles = std::vector<std::string>;

class RecordingHistoryTest : public EngineTest, public HistoryListener {
  protected:
    FakeRecordings& stored() { return platform().recordings; }

    /// A macro of that one key, which is its title too.
    static boost::shared_ptr<Macro> recorded(const std::string& title) {
        boost::shared_ptr<Macro> macro = MacroManager::createMacro();
        macro->addAction(createKeyCode(0, title, 'k'));
        return macro;
    }
    void record(const std::string& title) { history.add(*recorded(title)); }

    static Titles titlesOf(const RecordingHistory& history) {
        Titles titles;
        std::transform(history.entries().begin(), history.entries().end(), std::back_inserter(titles),
                       [](const HistoryEntry& entry) { return entry.title; });
        return titles;
    }
    Titles titles() const { return titlesOf(history); }

    void recordingAppeared(std::size_t index) override {
        told.push_back("appeared " + std::to_string(index));
    }
    void recordingGone(int macroId) override { told.push_back("gone " + std::to_string(macroId)); }
    void historyFailed(const Error& why) override { told.push_back(why.message); }

    std::vector<std::string> told;
    RecordingHistory history{platform().recordings, *this};
};

TEST_F(RecordingHistoryTest, theLatestIsTheFirstAndNothingIsStoredAtFirst) {
    record("a");
    record("b");
    EXPECT_EQ(titles(), (Titles{"b", "a"}));
    EXPECT_EQ(stored().titles(), Titles{});
    EXPECT_EQ(told, (Titles{"appeared 0", "appeared 0"}));
}

TEST_F(RecordingHistoryTest, whatIsRecordedWhileItIsKeptIsStored) {
    history.setKept(true);
    const boost::shared_ptr<Macro> macro = recorded("a");
    history.add(*macro);
    ASSERT_EQ(stored().all().size(), 1U);
    EXPECT_EQ(stored().all().front().title, "a");
    EXPECT_EQ(stored().all().front().script, macro->script());
    const auto age = std::chrono::system_clock::now() - stored().all().front().recordedAt;
    EXPECT_LT(age, std::chrono::minutes(1));
    EXPECT_GT(age, -std::chrono::minutes(1));
}

TEST_F(RecordingHistoryTest, whatIsThereIsStoredAsSoonAsItIsKept) {
    record("a");
    record("b");
    history.setKept(true);
    EXPECT_EQ(stored().titles(), (Titles{"b", "a"}));
    // And only then.
    history.setKept(true);
    EXPECT_EQ(stored().titles(), (Titles{"b", "a"}));
}

TEST_F(RecordingHistoryTest, theNextRunHasItAgain) {
    history.setKept(true);
    record("a");
    record("b");
    const std::string script = MacroManager::macro(history.entries()[1].macroId)->script();
    MacroManager::instance().reset();
    RecordingHistory next(platform().recordings, *this);
    told.clear();
    next.setKept(true);
    EXPECT_EQ(titlesOf(next), (Titles{"b", "a"}));
    EXPECT_EQ(told, (Titles{"appeared 0", "appeared 1"}));
    EXPECT_EQ(MacroManager::macro(next.entries()[1].macroId)->script(), script);
    EXPECT_EQ(next.entries()[1].recordedAt, history.entries()[1].recordedAt);
    // What comes in is not stored once more.
    EXPECT_EQ(stored().titles(), (Titles{"b", "a"}));
}

TEST_F(RecordingHistoryTest, whatIsStoredComesBehindWhatIsThere) {
    history.setKept(true);
    record("early");
    RecordingHistory next(platform().recordings, *this);
    next.add(*recorded("late"));
    next.setKept(true);
    EXPECT_EQ(titlesOf(next), (Titles{"late", "early"}));
    EXPECT_EQ(stored().titles(), (Titles{"late", "early"}));
}

TEST_F(RecordingHistoryTest, nothingStaysStoredWhenItIsKeptNoLonger) {
    history.setKept(true);
    record("a");
    history.setKept(false);
    EXPECT_EQ(stored().titles(), Titles{});
    EXPECT_EQ(titles(), Titles{"a"});
    record("b");
    EXPECT_EQ(stored().titles(), Titles{});
    // Until it is again.
    history.setKept(true);
    EXPECT_EQ(stored().titles(), (Titles{"b", "a"}));
}

TEST_F(RecordingHistoryTest, aForgottenOneIsNeitherThereNorStored) {
    history.setKept(true);
    for (const char* const title : {"a", "b", "c"}) record(title);
    const int b = history.entries()[1].macroId;
    told.clear();
    EXPECT_TRUE(history.forget(b));
    EXPECT_EQ(titles(), (Titles{"c", "a"}));
    EXPECT_EQ(stored().titles(), (Titles{"c", "a"}));
    EXPECT_EQ(told, Titles{"gone " + std::to_string(b)});
    // It is none of the history any more.
    EXPECT_TRUE(history.forget(b));
    EXPECT_EQ(titles(), (Titles{"c", "a"}));
}

TEST_F(RecordingHistoryTest, whenAllAreForgottenNothingIsLeft) {
    history.setKept(true);
    record("a");
    record("b");
    const int a = history.entries()[1].macroId;
    const int b = history.entries()[0].macroId;
    told.clear();
    EXPECT_TRUE(history.forgetAll());
    EXPECT_EQ(titles(), Titles{});
    EXPECT_EQ(stored().titles(), Titles{});
    EXPECT_EQ(told, (Titles{"gone " + std::to_string(a), "gone " + std::to_string(b)}));
}

TEST_F(RecordingHistoryTest, aRecordingThatCannotBeStoredIsThereAndTold) {
    history.setKept(true);
    stored().failNextCall({"The disk is full", ""});
    record("a");
    EXPECT_EQ(titles(), Titles{"a"});
    EXPECT_EQ(told, (Titles{"appeared 0", "The disk is full"}));
    // The next one is.
    record("b");
    EXPECT_EQ(stored().titles(), Titles{"b"});
}

TEST_F(RecordingHistoryTest, oneThatCannotBeForgottenStaysToBeSeen) {
    history.setKept(true);
    record("a");
    told.clear();
    for (const bool isAll : {false, true}) {
        stored().failNextCall({"The folder is read-only", ""});
        const Result<> forgotten =
            isAll ? history.forgetAll() : history.forget(history.entries().front().macroId);
        ASSERT_FALSE(forgotten);
        EXPECT_EQ(forgotten.error().message, "The folder is read-only");
        EXPECT_EQ(titles(), Titles{"a"});
        EXPECT_EQ(stored().titles(), Titles{"a"});
    }
    EXPECT_EQ(told, Titles{});
}

/// The user wants it no longer, and it stays in the store all the same.
class StuckHistoryTest : public RecordingHistoryTest {
  protected:
    StuckHistoryTest() {
        history.setKept(true);
        record("a");
        told.clear();
        stored().failNextCall({"The folder is read-only", ""});
        history.setKept(false);
    }
};

TEST_F(StuckHistoryTest, isTold) {
    EXPECT_EQ(told, Titles{"The folder is read-only"});
    EXPECT_EQ(stored().titles(), Titles{"a"});
}

TEST_F(StuckHistoryTest, isNeitherListedNorStoredTwiceWhenItIsWantedAgain) {
    history.setKept(true);
    EXPECT_EQ(titles(), Titles{"a"});
    EXPECT_EQ(stored().titles(), Titles{"a"});
}

TEST_F(StuckHistoryTest, goesWhenItIsForgotten) {
    EXPECT_TRUE(history.forget(history.entries().front().macroId));
    EXPECT_EQ(stored().titles(), Titles{});
}

TEST_F(StuckHistoryTest, goesWhenAllIsForgotten) {
    EXPECT_TRUE(history.forgetAll());
    EXPECT_EQ(stored().titles(), Titles{});
}

}  // namespace
