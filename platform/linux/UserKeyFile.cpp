// SPDX-License-Identifier: MIT
#include "platform/linux/UserKeyFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <utility>

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

}  // namespace

UserKeyFile::UserKeyFile(std::string path, Words words, std::function<void(const Error&)> tellFault)
    : m_path(std::move(path)),
      m_words(std::move(words)),
      m_tellFault(std::move(tellFault)),
      m_file(m_path, m_words.kind + " file") {}

Result<KeyFile> UserKeyFile::readAny(const std::string& path, const std::string& kind) {
    const auto content = WholeFile(path, kind + " file").read();
    if (!content) return content.error();
    auto file = KeyFile::parse(content.value());
    if (file) return file;
    return Error{"The " + kind + " file " + path + " is not a key file: " + file.error().message,
                 "Correct the file or remove it."};
}

Result<KeyFile> UserKeyFile::read(Damaged damaged) const {
    if (m_file.isAbsent()) return KeyFile();
    auto file = readAny(m_path, m_words.kind);
    if (file || damaged == Damaged::stays) return file;
    const Result<> aside = putAside(file.error());
    if (!aside) return aside.error();
    return KeyFile();
}

Result<> UserKeyFile::write(const KeyFile& content) const {
    const std::string folder = std::filesystem::path(m_path).parent_path();
    if (g_mkdir_with_parents(folder.c_str(), 0700) != 0) {
        return Error{"The " + m_words.kind + " folder " + folder + " cannot be made: " + std::strerror(errno),
                     "Check who may write there."};
    }
    return m_file.write(content.content(), 0600);
}

Result<> UserKeyFile::putAside(const Error& fault) const {
    // A link by itself: what it leads to may be anybody's, and be used elsewhere.
    const std::string aside = asideName(m_path);
    if (std::rename(m_path.c_str(), aside.c_str()) != 0) {
        return Error{fault.message, "It could not be put aside either: " + std::string(std::strerror(errno))};
    }
    m_tellFault({fault.message, "It was renamed to " + aside + ", and " + m_words.afterwards});
    return {};
}
