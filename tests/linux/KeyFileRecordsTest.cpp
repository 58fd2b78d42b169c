// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileRecords.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

class KeyFileRecordsTest : public testing::Test {
  protected:
    using Records = std::map<std::string, Record>;

    void put(const std::string& content) const {
        fs::create_directories(m_config.file("keyrill"));
        std::ofstream(file, std::ios::binary) << content;
    }
    KeyFileRecords records() const { return KeyFileRecords(m_config.path()); }

    TemporaryFolder m_config;
    const std::string file = m_config.file("keyrill/macros.conf");
};

TEST_F(KeyFileRecordsTest, writesAGroupARecord) {
    auto store = records();
    store.set("mail/Greeting.keyrill", {{"hotKeyCode", "18"}, {"speed", "0.5"}});
    store.set("[50%]\xFF.keyrill", {{"times", "3"}});
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file),
              "[%5B50%25%5D%FF.keyrill]\ntimes=3\n\n[mail/Greeting.keyrill]\nhotKeyCode=18\nspeed=0.5\n");
}

TEST_F(KeyFileRecordsTest, isForTheUserAlone) {
    auto store = records();
    store.set("a", {{"times", "3"}});
    EXPECT_TRUE(store.synchronize());
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    ASSERT_EQ(stat(m_config.file("keyrill").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
}

TEST_F(KeyFileRecordsTest, makesNothingWhereNothingIsSet) {
    auto store = records();
    EXPECT_EQ(store.records(), Records{});
    EXPECT_TRUE(store.synchronize());
    EXPECT_FALSE(fs::exists(m_config.file("keyrill")));
}

TEST_F(KeyFileRecordsTest, writesInTheEndWhatCouldNotBeWrittenBefore) {
    // No folder can be made there.
    std::ofstream(m_config.file("keyrill")) << "in the way";
    {
        auto store = records();
        store.set("a", {{"times", "3"}});
        EXPECT_FALSE(store.synchronize());
        fs::remove(m_config.file("keyrill"));
    }
    EXPECT_EQ(contentOf(file), "[a]\ntimes=3\n");
}

TEST_F(KeyFileRecordsTest, readsWhatWasWrittenByHand) {
    put("# mine\n[ab%zz%5b]\ntimes = 3 \nown=kept\n\n[empty]\n");
    EXPECT_EQ(records().records(), (Records{{"ab%zz%5b", {{"times", "3"}, {"own", "kept"}}}}));
}

TEST_F(KeyFileRecordsTest, changesTheGroupThatThereIs) {
    put("# mine\n\n[ab%zz]\ntimes=3\n");
    auto store = records();
    store.set("ab%zz", {{"times", "4"}});
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "# mine\n\n[ab%zz]\ntimes=4\n");
}

TEST_F(KeyFileRecordsTest, keepsWhatOthersHaveChangedMeanwhile) {
    put("[a]\ntimes=3\n");
    auto store = records();
    EXPECT_EQ(store.records(), (Records{{"a", {{"times", "3"}}}}));
    put("[a]\ntimes=5\n\n[b]\nspeed=2\n");
    store.set("c", {{"times", "2"}});
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(contentOf(file), "[a]\ntimes=5\n\n[b]\nspeed=2\n\n[c]\ntimes=2\n");
}

TEST_F(KeyFileRecordsTest, putsADamagedFileAsideAndSaysSo) {
    const std::string damaged = "[a]\ntimes=3\nthis is no line of a key file\n";
    put(damaged);
    auto store = records();
    EXPECT_EQ(store.records(), Records{});
    const auto fault = store.takeFault();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->message,
              "The macro settings file " + file +
                  " is not a key file: Key file contains line “this is no line of a key file” "
                  "which is not a key-value pair, group, or comment");
    std::string aside;
    for (const auto& entry : fs::directory_iterator(m_config.file("keyrill"))) aside = entry.path();
    EXPECT_TRUE(aside.starts_with(file + ".bad-"));
    EXPECT_EQ(fault->hint, "It was renamed to " + aside + ", and hot keys, times and speeds begin anew.");
    EXPECT_EQ(contentOf(aside), damaged);
    EXPECT_EQ(store.takeFault(), std::nullopt);
}

TEST_F(KeyFileRecordsTest, readsNothingBeforeItIsAsked) {
    put("damaged");
    auto store = records();
    EXPECT_EQ(store.takeFault(), std::nullopt);
    EXPECT_EQ(contentOf(file), "damaged");
}

}  // namespace
