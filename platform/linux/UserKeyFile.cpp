// SPDX-License-Identifier: MIT
#include "platform/linux/UserKeyFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <utility>

#include "platform/Sentence.h"

namespace {

/// A name for a file that is put aside, which nothing has yet.
std::string asideName(const std::string& path) {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    std::array<char, 32> time{};
    std::strftime(time.data(), time.size(), "%Y%m%d-%H%M%S", &utc);
    const std::string first = path + ".bad-" + time.data();
    std::string name = first;
    std::error_code error;
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(name, error)); ++number) {
        name = first + "-" + std::to_string(number);
    }
    return name;
}

using Kind = UserKeyFile::Kind;

Sentence noKeyFile(Kind kind) {
    //: %1 is a file, %2 why, perhaps in the system's words: It has a zero byte
    if (kind == Kind::settings) return sentence("Settings", "The settings file %1 is not a key file: %2");
    //: %1 is a file, %2 why, perhaps in the system's words: It has a zero byte
    return sentence("Settings", "The macro settings file %1 is not a key file: %2");
}

Sentence noFolder(Kind kind) {
    //: %1 is a folder, %2 why, in the system's words.
    if (kind == Kind::settings) return sentence("Settings", "The settings folder %1 cannot be made: %2");
    //: %1 is a folder, %2 why, in the system's words.
    return sentence("Settings", "The macro settings folder %1 cannot be made: %2");
}

Sentence wasRenamed(Kind kind) {
    //: %1 is a file.
    if (kind == Kind::settings)
        return sentence("Settings", "It was renamed to %1, and the settings begin anew.");
    //: %1 is a file.
    return sentence("Settings", "It was renamed to %1, and hot keys, times and speeds begin anew.");
}

}  // namespace

UserKeyFile::UserKeyFile(std::string path, Kind kind, std::function<void(const Error&)> tellFault)
    : m_path(std::move(path)), m_kind(kind), m_tellFault(std::move(tellFault)), m_file(m_path, kind) {}

Result<KeyFile> UserKeyFile::readAny(const std::string& path, Kind kind) {
    const auto content = WholeFile(path, kind).read();
    if (!content) return content.error();
    auto file = KeyFile::parse(content.value());
    if (file) return file;
    return Error{noKeyFile(kind).arg(path).arg(file.error().message),
                 sentence("Settings", "Correct the file or remove it.")};
}

Result<KeyFile> UserKeyFile::read(Damaged damaged) const {
    if (m_file.isAbsent()) return KeyFile();
    auto file = readAny(m_path, m_kind);
    if (file || damaged == Damaged::stays) return file;
    const Result<> aside = putAside(file.error());
    if (!aside) return aside.error();
    return KeyFile();
}

Result<> UserKeyFile::write(const KeyFile& content) const {
    const std::string folder = std::filesystem::path(m_path).parent_path();
    if (g_mkdir_with_parents(folder.c_str(), 0700) != 0) {
        return Error{noFolder(m_kind).arg(folder).arg(std::strerror(errno)),
                     sentence("Folders", "Check who may write there.")};
    }
    return m_file.write(content.content(), 0600);
}

Result<> UserKeyFile::putAside(const Error& fault) const {
    // A link by itself: what it leads to may be anybody's, and be used elsewhere.
    const std::string aside = asideName(m_path);
    if (std::rename(m_path.c_str(), aside.c_str()) != 0) {
        //: %1 is why, in the system's words.
        return Error{fault.message,
                     sentence("Settings", "It could not be put aside either: %1").arg(std::strerror(errno))};
    }
    m_tellFault({fault.message, wasRenamed(m_kind).arg(aside)});
    return {};
}
