// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/RecordingStore.h"

/// Recordings and where they are stored.
class RecordingStoreWorld {
  public:
    virtual ~RecordingStoreWorld() = default;

    virtual RecordingStore& store() = 0;
    /// The next one that is to be stored is not.
    virtual void breakNextWrite() = 0;
};

using MakeRecordingStoreWorld = std::function<std::unique_ptr<RecordingStoreWorld>()>;

/// What every RecordingStore does.
class RecordingStoreContract : public testing::TestWithParam<MakeRecordingStoreWorld> {
  protected:
    using Titles = std::vector<std::string>;

    RecordingStore& store() { return world->store(); }

    /// Of 14 May 2026 at noon (UTC), so many milliseconds after it.
    static StoredRecording recording(int milliseconds, const std::string& title) {
        using namespace std::chrono;
        return {.recordedAt =
                    RecordedAt(sys_days(2026y / 5 / 14) + 12h + std::chrono::milliseconds(milliseconds)),
                .title = title,
                .script = "tell application \"System Events\"\n\tkeystroke \"" + title + "\"\nend tell\n"};
    }
    std::string keep(const StoredRecording& recording) {
        const auto name = store().keep(recording);
        EXPECT_TRUE(name);
        return name ? name.value() : std::string();
    }
    Titles titles() {
        Titles titles;
        for (const StoredRecording& one : store().all()) titles.push_back(one.title);
        return titles;
    }

    std::unique_ptr<RecordingStoreWorld> world = GetParam()();
};

TEST_P(RecordingStoreContract, isEmptyAtFirst) {
    EXPECT_EQ(titles(), Titles{});
    EXPECT_TRUE(store().forgetAll());
}

TEST_P(RecordingStoreContract, givesBackWhatWasKept) {
    StoredRecording kept = recording(7, "Hello ↩ <⌘+s> & \\ -- \"x\"");
    kept.name = keep(kept);
    ASSERT_EQ(store().all().size(), 1U);
    EXPECT_EQ(store().all().front(), kept);
}

TEST_P(RecordingStoreContract, keepsScriptsOfAnyShape) {
    for (const std::string script : {"", "\n", "-- a comment", "one line", "\n\ntwo\n\n", "\xEF\xBB\xBFé"}) {
        StoredRecording kept = recording(0, "");
        kept.script = script;
        kept.name = keep(kept);
        ASSERT_EQ(store().all().size(), 1U);
        EXPECT_EQ(store().all().front(), kept);
        EXPECT_TRUE(store().forgetAll());
    }
}

TEST_P(RecordingStoreContract, theLatestIsTheFirst) {
    keep(recording(1000, "second"));
    keep(recording(999, "first"));
    keep(recording(86'400'000, "third"));
    EXPECT_EQ(titles(), (Titles{"third", "second", "first"}));
}

TEST_P(RecordingStoreContract, recordingsOfTheSameMomentAreTwo) {
    const std::string first = keep(recording(0, "first"));
    const std::string second = keep(recording(0, "second"));
    EXPECT_NE(first, second);
    EXPECT_EQ(titles(), (Titles{"second", "first"}));
}

TEST_P(RecordingStoreContract, theEarliestGoesAboveTheMost) {
    const int most = static_cast<int>(RecordingStore::most);
    for (int i = 0; i < most; ++i) keep(recording(i, std::to_string(i)));
    EXPECT_EQ(titles().size(), RecordingStore::most);
    EXPECT_EQ(titles().back(), "0");
    keep(recording(most, "one more"));
    EXPECT_EQ(titles().size(), RecordingStore::most);
    EXPECT_EQ(titles().front(), "one more");
    EXPECT_EQ(titles().back(), "1");
}

TEST_P(RecordingStoreContract, theOneThatIsKeptDoesNotGoWhateverTheClockSays) {
    for (int i = 1; i <= static_cast<int>(RecordingStore::most); ++i) keep(recording(i, "later"));
    keep(recording(0, "now"));
    EXPECT_EQ(titles().size(), RecordingStore::most);
    EXPECT_EQ(titles().back(), "now");
}

TEST_P(RecordingStoreContract, forgetsOne) {
    keep(recording(0, "first"));
    const std::string second = keep(recording(1, "second"));
    keep(recording(2, "third"));
    EXPECT_TRUE(store().forget(second));
    EXPECT_EQ(titles(), (Titles{"third", "first"}));
    // It is gone already.
    EXPECT_TRUE(store().forget(second));
    EXPECT_EQ(titles(), (Titles{"third", "first"}));
}

TEST_P(RecordingStoreContract, forgetsAll) {
    keep(recording(0, "first"));
    keep(recording(1, "second"));
    EXPECT_TRUE(store().forgetAll());
    EXPECT_EQ(titles(), Titles{});
    keep(recording(2, "third"));
    EXPECT_EQ(titles(), Titles{"third"});
}

TEST_P(RecordingStoreContract, tellsWhyOneIsNotStored) {
    world->breakNextWrite();
    const auto name = store().keep(recording(0, "first"));
    ASSERT_FALSE(name);
    EXPECT_FALSE(name.error().message.empty());
    EXPECT_EQ(titles(), Titles{});
}
