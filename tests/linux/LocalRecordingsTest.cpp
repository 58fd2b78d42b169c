// SPDX-License-Identifier: MIT
#include "platform/linux/LocalRecordings.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "linux/LeftOver.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

class LocalRecordingsTest : public testing::Test {
  protected:
    /// Of 22 November 2026, 17:40:12.345 (UTC).
    StoredRecording evening() const {
        using namespace std::chrono;
        return {.recordedAt = RecordedAt(sys_days(2026y / 11 / 22) + 17h + 40min + 12s + 345ms),
                .title = "ab",
                .script = "tell application \"System Events\"\nend tell\n"};
    }
    std::string file(const std::string& name) const { return m_state.file("keyrill/history/" + name); }
    void put(const std::string& name, const std::string& content) const {
        fs::create_directories(m_state.file("keyrill/history"));
        std::ofstream(file(name), std::ios::binary) << content;
    }
    static unsigned modeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777U;
    }

    TemporaryFolder m_state;
    LocalRecordings store{m_state.file("keyrill")};
};

TEST_F(LocalRecordingsTest, eachIsAMacroFileWithItsTimeAsName) {
    const auto name = store.keep(evening());
    ASSERT_TRUE(name);
    EXPECT_EQ(name.value(), "20261122T174012.345Z.keyrill");
    EXPECT_EQ(contentOf(file(name.value())), "-- ab\ntell application \"System Events\"\nend tell\n");
}

TEST_F(LocalRecordingsTest, theyAreForTheUserAlone) {
    const auto name = store.keep(evening());
    ASSERT_TRUE(name);
    EXPECT_EQ(modeOf(file(name.value())), 0600U);
    EXPECT_EQ(modeOf(m_state.file("keyrill/history")), 0700U);
    EXPECT_EQ(modeOf(m_state.file("keyrill")), 0700U);
}

TEST_F(LocalRecordingsTest, nothingIsMadeBeforeThereIsSomethingToKeep) {
    EXPECT_TRUE(store.all().empty());
    EXPECT_TRUE(store.forgetAll());
    EXPECT_TRUE(store.forget("20261122T174012.345Z.keyrill"));
    EXPECT_FALSE(fs::exists(m_state.file("keyrill")));
}

TEST_F(LocalRecordingsTest, lineEndsOfATitleBecomeBlanks) {
    StoredRecording recording = evening();
    recording.title = "a\nb\rc";
    ASSERT_TRUE(store.keep(recording));
    EXPECT_EQ(store.all().front().title, "a b c");
    EXPECT_EQ(store.all().front().script, recording.script);
}

TEST_F(LocalRecordingsTest, otherFilesAreNeitherReadNorForgotten) {
    const std::string mine = "-- mine\nbeep\n";
    const std::vector<std::string> others = {"notes.txt",
                                             "mine.keyrill",
                                             "20261122T174012.345Z.keyrill.bak",
                                             "20261122T174012Z.keyrill",
                                             "20261332T174012.345Z.keyrill",
                                             " 20261122T174012.345Z.keyrill",
                                             "20261122T174012.3450Z.keyrill"};
    for (const std::string& name : others) put(name, mine);
    fs::create_directory(file("20260101T000000.000Z.keyrill"));
    ASSERT_TRUE(store.keep(evening()));
    EXPECT_EQ(store.all().size(), 1U);
    EXPECT_TRUE(store.forget("mine.keyrill"));
    EXPECT_TRUE(store.forget("../history/mine.keyrill"));
    static_cast<void>(store.forgetAll());
    EXPECT_TRUE(store.all().empty());
    for (const std::string& name : others) EXPECT_EQ(contentOf(file(name)), mine) << name;
    EXPECT_TRUE(fs::is_directory(file("20260101T000000.000Z.keyrill")));
}

TEST_F(LocalRecordingsTest, aFileThatIsNoRecordingIsLeftOut) {
    put("20260101T000000.000Z.keyrill", "beep\n");
    put("20260101T000000.001Z.keyrill", "-- no line end");
    put("20260101T000000.002Z.keyrill", "");
    put("20260101T000000.003Z.keyrill", "-- b\nbeep\n");
    ASSERT_EQ(store.all().size(), 1U);
    EXPECT_EQ(store.all().front().title, "b");
}

TEST_F(LocalRecordingsTest, ofTooManyTheLatestAreRead) {
    for (int second = 10; second < 70; ++second) {
        const std::string name = "20260101T00" + std::string(second < 60 ? "00" : "01") +
                                 std::to_string(second < 60 ? second : second - 50) + ".000Z.keyrill";
        put(name, "-- " + std::to_string(second) + "\n");
    }
    ASSERT_EQ(store.all().size(), RecordingStore::most);
    EXPECT_EQ(store.all().front().title, "69");
    EXPECT_EQ(store.all().back().title, "20");
}

TEST_F(LocalRecordingsTest, whatAKilledWriterLeftGoes) {
    fs::create_directories(m_state.file("keyrill/history"));
    const std::string first = makeLeftOver(m_state.file("keyrill/history"));
    EXPECT_TRUE(store.forgetAll());
    EXPECT_FALSE(fs::exists(first));
    const std::string second = makeLeftOver(m_state.file("keyrill/history"));
    EXPECT_TRUE(store.all().empty());
    EXPECT_FALSE(fs::exists(second));
}

TEST_F(LocalRecordingsTest, oneThatCannotBeDeletedIsToldAndTheOthersGo) {
    // A folder cannot be, whoever asks for it.
    fs::create_directories(file("20260101T000000.000Z.keyrill"));
    const auto name = store.keep(evening());
    ASSERT_TRUE(name);
    const Result<> forgotten = store.forgetAll();
    ASSERT_FALSE(forgotten);
    EXPECT_NE(forgotten.error().message.text().find("20260101T000000.000Z.keyrill"), std::string::npos);
    EXPECT_FALSE(fs::exists(file(name.value())));
}

}  // namespace
