// SPDX-License-Identifier: MIT
//
// The services over files under the contracts that their fakes keep, too.
#include <filesystem>
#include <fstream>

#include "contracts/LoginItemsContract.h"
#include "contracts/MacroFilesContract.h"
#include "contracts/SettingsStoreContract.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/LocalMacroFiles.h"
#include "support/Child.h"

namespace {

template <typename World, typename Base>
std::function<std::unique_ptr<Base>()> maker() {
    return []() -> std::unique_ptr<Base> { return std::make_unique<World>(); };
}

class AutostartWorld : public LoginItemsWorld {
  public:
    LoginItems& items() override { return m_entry; }
    void userHidesEntry() override { std::ofstream(m_file, std::ios::app) << "Hidden=true\n"; }
    void otherProgramTakesEntry() override {
        std::filesystem::create_directories(m_folder.file("autostart"));
        std::ofstream(m_file) << "[Desktop Entry]\nType=Application\nName=Keyrill\nExec=/old/keyrill\n";
    }
    bool isOtherProgramsEntry() const override {
        return contentOf(m_file).find("\nExec=/old/keyrill\n") != std::string::npos;
    }

  private:
    TemporaryFolder m_folder;
    const std::string m_file = m_folder.file("autostart/example.orlen.Keyrill.desktop");
    AutostartEntry m_entry{{m_folder.path(), {}}, "/opt/keyrill"};
};

class KeyFileWorld : public SettingsStoreWorld {
  public:
    SettingsStore& store() override { return m_settings; }
    void endTurn() override { m_settings.endTurn(); }
    std::optional<std::int64_t> stored(const std::string& key) const override {
        return KeyFileSettings(m_folders).integer(key);
    }
    void breakNextWrite() override { std::ofstream(m_folders.user) << "in the folder's place"; }
    void repair() override { std::filesystem::remove(m_folders.user); }

  private:
    TemporaryFolder m_folder;
    const ConfigFolders m_folders{m_folder.file("config"), {}};
    KeyFileSettings m_settings{m_folders};
};

class LocalMacroFilesWorld : public MacroFilesWorld {
  public:
    MacroFiles& files() override { return m_files; }
    std::string path(const std::string& name) const override { return m_folder.file(name); }

  private:
    TemporaryFolder m_folder;
    LocalMacroFiles m_files{m_folder.path(), m_folder.file("data")};
};

INSTANTIATE_TEST_SUITE_P(InFiles, LoginItemsContract,
                         testing::Values(maker<AutostartWorld, LoginItemsWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, SettingsStoreContract,
                         testing::Values(maker<KeyFileWorld, SettingsStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, MacroFilesContract,
                         testing::Values(maker<LocalMacroFilesWorld, MacroFilesWorld>()));

}  // namespace
