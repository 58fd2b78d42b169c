// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartEntry.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "platform/Sentence.h"
#include "platform/linux/DesktopExec.h"
#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"

namespace {

constexpr const char* fileName = "/autostart/example.orlen.Keyrill.desktop";
constexpr const char* group = "Desktop Entry";
/// In the entries that mask a system-wide one.
constexpr const char* maskKey = "X-Keyrill-Mask";

/// `exec` is the value of Exec. A short delay and the panel first, because the tray is what the program waits
/// for.
std::string entryText(const std::string& exec) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Keyrill\n"
           "Comment=Record keystrokes and play them again\n"
           "Exec=" +
           exec +
           "\n"
           "Icon=example.orlen.Keyrill\n"
           "Terminal=false\n"
           "Hidden=false\n"
           "X-GNOME-Autostart-Delay=2\n"
           "X-KDE-autostart-after=panel\n"
           "X-LXQt-Need-Tray=true\n";
}

std::string maskText() {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Keyrill\n"
           "Hidden=true\n" +
           std::string(maskKey) + "=true\n";
}

}  // namespace

/// What a file says, as far as it matters here.
struct AutostartEntry::Entry {
    explicit Entry(const std::string& path) {
        const WholeFile file(path);
        isThere = !file.isAbsent();
        const auto content = file.read();
        const auto keys = content ? KeyFile::parse(content.value()) : Result<KeyFile>(content.error());
        if (!keys) return;
        const auto says = [&](const char* key, const char* text) {
            return keys.value().text(group, key) == text;
        };
        isMask = says(maskKey, "true");
        isHidden = says("Hidden", "true") || says("X-GNOME-Autostart-enabled", "false");
        program = programIn(keys.value().text(group, "Exec").value_or("")).value_or("");
    }

    bool isHiddenByUser() const { return isHidden && !isMask; }
    bool starts(const std::string& path) const { return !isHidden && program == path; }

    bool isThere = false;
    bool isMask = false;
    bool isHidden = false;
    std::string program;
};

AutostartEntry::AutostartEntry(ConfigFolders folders, std::string programPath, std::string sandboxMark)
    : m_folders(std::move(folders)),
      m_programPath(std::move(programPath)),
      m_sandboxMark(std::move(sandboxMark)) {}

LoginItems::State AutostartEntry::state() const {
    const Entry users = usersEntry();
    if (users.isHiddenByUser()) return State::hiddenByUser;
    const bool isOurs = users.isThere ? users.starts(m_programPath) : isSystemwideOurs();
    return isOurs ? State::on : State::off;
}

Result<> AutostartEntry::install(bool enable) {
    if (enable) return state() == State::off ? add() : Result<>();
    return state() == State::on ? remove() : Result<>();
}

Result<> AutostartEntry::reveal() { return state() == State::on ? Result<>() : add(); }

std::string AutostartEntry::userPath() const { return m_folders.user + fileName; }

AutostartEntry::Entry AutostartEntry::usersEntry() const { return Entry(userPath()); }

bool AutostartEntry::isSystemwideOurs() const {
    for (const std::string& folder : m_folders.system) {
        const Entry entry(folder + fileName);
        if (entry.isThere) return entry.starts(m_programPath);
    }
    return false;
}

Result<> AutostartEntry::add() const {
    if (access(m_sandboxMark.c_str(), F_OK) == 0) {
        return Error{
            sentence("LogIn", "A program in a sandbox cannot make an entry that starts it at log-in."),
            sentence("LogIn",
                     "Add Keyrill to the programs that start at log-in, in your desktop's settings.")};
    }
    const auto exec = execValue(m_programPath);
    return exec ? write(entryText(exec.value())) : Result<>(exec.error());
}

Result<> AutostartEntry::remove() const {
    if (isSystemwideOurs()) return write(maskText());
    if (unlink(userPath().c_str()) == 0) return {};
    //: %2 is why, in the system's words.
    return Error{
        sentence("LogIn", "The file %1 cannot be removed: %2").arg(userPath()).arg(std::strerror(errno)),
        sentence("LogIn", "Check who may write in its folder.")};
}

Result<> AutostartEntry::write(const std::string& content) const {
    const std::string folder = std::filesystem::path(userPath()).parent_path();
    if (g_mkdir_with_parents(folder.c_str(), 0700) != 0) {
        //: %2 is why, in the system's words.
        return Error{
            sentence("Folders", "The folder %1 cannot be made: %2").arg(folder).arg(std::strerror(errno)),
            sentence("Folders", "Check who may write there.")};
    }
    return WholeFile(userPath()).write(content);
}
