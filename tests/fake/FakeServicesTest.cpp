// SPDX-License-Identifier: MIT
//
// The fake services under the contracts of the real ones.
#include "contracts/LoginItemsContract.h"
#include "contracts/MacroFilesContract.h"
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

INSTANTIATE_TEST_SUITE_P(InMemory, LoginItemsContract,
                         testing::Values(maker<FakeLoginItemsWorld, LoginItemsWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, SettingsStoreContract,
                         testing::Values(maker<FakeSettingsStoreWorld, SettingsStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InMemory, MacroFilesContract,
                         testing::Values(maker<FakeMacroFilesWorld, MacroFilesWorld>()));

}  // namespace
