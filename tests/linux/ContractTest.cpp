// SPDX-License-Identifier: MIT
//
// The services over files under the contracts that their fakes keep, too.
#include <filesystem>
#include <fstream>

#include "contracts/FolderFollowerContract.h"
#include "contracts/LoginItemsContract.h"
#include "contracts/MacroFilesContract.h"
#include "contracts/RecordStoreContract.h"
#include "contracts/RecordingStoreContract.h"
#include "contracts/SettingsStoreContract.h"
#include "linux/FollowedFolder.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/KeyFileRecords.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/LocalMacroFiles.h"
#include "platform/linux/LocalRecordings.h"
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

class KeyFileRecordsWorld : public RecordStoreWorld {
  public:
    RecordStore& store() override { return m_records; }
    void endTurn() override { m_records.endTurn(); }
    std::map<std::string, Record> stored() const override {
        return KeyFileRecords(m_folder.file("config")).records();
    }
    void breakNextWrite() override { std::ofstream(m_folder.file("config")) << "in the folder's place"; }
    void repair() override { std::filesystem::remove(m_folder.file("config")); }

  private:
    TemporaryFolder m_folder;
    KeyFileRecords m_records{m_folder.file("config")};
};

class LocalFolderWorld : public FolderFollowerWorld {
  public:
    FolderFollower& follower() override { return m_folder.follower(); }
    std::string folder() const override { return m_folder.path(); }
    void writes(const std::string& path, const std::string& text) override { m_folder.writes(path, text); }
    void replaces(const std::string& path, const std::string& text) override {
        m_folder.replaces(path, text);
    }
    void renames(const std::string& from, const std::string& to) override {
        std::filesystem::rename(m_folder.file(from), m_folder.file(to));
    }
    void removes(const std::string& path) override { m_folder.removes(path); }
    void awaitNews() override { m_folder.awaitNews(); }

  private:
    FollowedFolder m_folder;
};

class LocalRecordingsWorld : public RecordingStoreWorld {
  public:
    RecordingStore& store() override { return m_recordings; }
    void breakNextWrite() override { std::ofstream(m_folder.file("keyrill")) << "in the folder's place"; }

  private:
    TemporaryFolder m_folder;
    LocalRecordings m_recordings{m_folder.file("keyrill")};
};

INSTANTIATE_TEST_SUITE_P(InFiles, FolderFollowerContract,
                         testing::Values(maker<LocalFolderWorld, FolderFollowerWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, RecordStoreContract,
                         testing::Values(maker<KeyFileRecordsWorld, RecordStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, RecordingStoreContract,
                         testing::Values(maker<LocalRecordingsWorld, RecordingStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, LoginItemsContract,
                         testing::Values(maker<AutostartWorld, LoginItemsWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, SettingsStoreContract,
                         testing::Values(maker<KeyFileWorld, SettingsStoreWorld>()));
INSTANTIATE_TEST_SUITE_P(InFiles, MacroFilesContract,
                         testing::Values(maker<LocalMacroFilesWorld, MacroFilesWorld>()));

}  // namespace
