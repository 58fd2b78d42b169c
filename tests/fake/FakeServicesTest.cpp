// SPDX-License-Identifier: MIT
//
// The fake services under the contracts of the real ones.
#include "contracts/FolderFollowerContract.h"
#include "contracts/LoginItemsContract.h"
#include "contracts/MacroFilesContract.h"
#include "contracts/RecordStoreContract.h"
#include "contracts/RecordingStoreContract.h"
#include "contracts/SettingsStoreContract.h"
#include "platform/fake/FakePlatform.h"

namespace {

template <typename World, typename Base>
std::function<std::unique_ptr<Base>()> maker() {
    return []() -> std::unique_ptr<Base> { return std::make_unique<World>(); };
}

class FakeLoginItemsWorld : public LoginItemsWorld {
  public:
    LoginItems& items() override { return m_items; }
    void userHidesEntry() override { m_items.userHidesEntry(); }
    void otherProgramTakesEntry() override { m_items.put({.path = "/old/keyrill"}); }
    bool isOtherProgramsEntry() const override {
        return m_items.entry() && m_items.entry()->path == "/old/keyrill";
    }

  private:
    Journal m_journal;
    FakeLoginItems m_items{m_journal};
};

class FakeSettingsStoreWorld : public SettingsStoreWorld {
  public:
    SettingsStore& store() override { return m_store; }
    void endTurn() override { m_store.endTurn(); }
    std::optional<std::int64_t> stored(const std::string& key) const override {
        const auto value = m_store.stored().find(key);
        return value != m_store.stored().end() ? std::optional(value->second) : std::nullopt;
    }
    void breakNextWrite() override { m_store.failNextCall({"The disk is full.", ""}); }
    void repair() override {}

  private:
    Journal m_journal;
    FakeSettingsStore m_store{m_journal};
};

class FakeMacroFilesWorld : public MacroFilesWorld {
  public:
    MacroFiles& files() override { return m_files; }
    std::string path(const std::string& name) const override { return "/home/user/" + name; }

  private:
    Journal m_journal;
    FakeMacroFiles m_files{m_journal};
};

class FakeFolderFollowerWorld : public FolderFollowerWorld {
  public:
    FolderFollower& follower() override { return m_follower; }
    std::string folder() const override { return FakeMacroFiles::usualFolder; }
    void writes(const std::string& path, const std::string& text) override {
        m_follower.userWrites(path, text);
    }
    void replaces(const std::string& path, const std::string& text) override {
        m_follower.userReplaces(path, text);
    }
    void renames(const std::string& from, const std::string& to) override {
        m_follower.userRenames(from, to);
    }
    void removes(const std::string& path) override { m_follower.userRemoves(path); }
    void awaitNews() override { m_follower.deliver(); }

  private:
    Journal m_journal;
    FakeMacroFiles m_files{m_journal};
    FakeFolderFollower m_follower{m_files};
};

class FakeRecordStoreWorld : public RecordStoreWorld {
  public:
    RecordStore& store() override { return m_store; }
    void endTurn() override { m_store.endTurn(); }
    std::map<std::string, Record> stored() const override { return m_store.stored(); }
    void breakNextWrite() override { m_store.failNextCall({"The disk is full.", ""}); }
    void repair() override {}

  private:
    FakeRecordStore m_store;
};

class FakeRecordingsWorld : public RecordingStoreWorld {
  public:
    RecordingStore& store() override { return m_recordings; }
    void breakNextWrite() override { m_recordings.failNextCall({"The disk is full.", ""}); }

  private:
    FakeRecordings m_recordings;
};

INSTANTIATE_TEST_SUITE_P(InMemory, FolderFollowerContract,
                         testing::Values(maker<FakeFolderFollowerWorld, FolderFollowerWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, RecordStoreContract,
                         testing::Values(maker<FakeRecordStoreWorld, RecordStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, RecordingStoreContract,
                         testing::Values(maker<FakeRecordingsWorld, RecordingStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, LoginItemsContract,
                         testing::Values(maker<FakeLoginItemsWorld, LoginItemsWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, SettingsStoreContract,
                         testing::Values(maker<FakeSettingsStoreWorld, SettingsStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, MacroFilesContract,
                         testing::Values(maker<FakeMacroFilesWorld, MacroFilesWorld>()));

}  // namespace
