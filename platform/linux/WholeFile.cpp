// SPDX-License-Identifier: MIT
#include "platform/linux/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/Sentence.h"
#include "platform/linux/FileReplacement.h"
#include "platform/linux/RegularFile.h"

namespace fs = std::filesystem;

namespace {

constexpr mode_t modeOfNewFiles = 0600;

constexpr std::size_t portion = 65536;

std::string systemsCause() { return std::strerror(errno); }

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

/// Up to one byte more than is allowed, so that it shows where a file is larger.
Result<std::string> contentOf(const Descriptor& file, std::size_t most) {
    std::string content;
    while (content.size() <= most) {
        const std::size_t before = content.size();
        content.resize(before + portion);
        const ssize_t count = ::read(file.number(), content.data() + before, portion);
        content.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0) break;
        if (count < 0 && errno != EINTR) return Error{systemsCause(), ""};
    }
    return content;
}

/// What another user's file is has to stay theirs, which only root can see to and only root needs to; and a
/// group's its group's, which its members can see to. False if the file is in another group now.
bool keepOwner(const std::string& file, const struct stat& before) {
    const auto unchanged = static_cast<uid_t>(-1);
    const uid_t user = before.st_uid == geteuid() ? unchanged : before.st_uid;
    if (lchown(file.c_str(), user, before.st_gid) == 0) return true;
    const auto now = statusOf(file);
    return now && now->st_gid == before.st_gid;
}

/// What everybody may do is all that a group may which the file was not made for.
mode_t withoutGroup(mode_t mode) {
    constexpr mode_t group = 02070;
    return (mode & ~group) | ((mode & 07U) << 3U);
}

Sentence unreadable(WholeFile::Kind kind) {
    //: %1 is a file, %2 why, perhaps in the system's words: It is a folder
    if (kind == WholeFile::Kind::settings)
        return sentence("Settings", "The settings file %1 cannot be read: %2");
    //: %1 is a file, %2 why, perhaps in the system's words: It is a folder
    if (kind == WholeFile::Kind::macroSettings)
        return sentence("Settings", "The macro settings file %1 cannot be read: %2");
    //: %2 is why, perhaps in the system's words: It is a folder
    return sentence("Files", "The file %1 cannot be read: %2");
}

Sentence unwritable(WholeFile::Kind kind) {
    //: %1 is a file, %2 why, perhaps in the system's words: It is a folder
    if (kind == WholeFile::Kind::settings)
        return sentence("Settings", "The settings file %1 cannot be written: %2");
    //: %1 is a file, %2 why, perhaps in the system's words: It is a folder
    if (kind == WholeFile::Kind::macroSettings)
        return sentence("Settings", "The macro settings file %1 cannot be written: %2");
    //: %2 is why, perhaps in the system's words: It is a folder
    return sentence("Files", "The file %1 cannot be written: %2");
}

}  // namespace

WholeFile::WholeFile(std::string path, Kind kind) : m_path(std::move(path)), m_kind(kind) {}

std::string WholeFile::target() const {
    constexpr int mostLinks = 40;
    fs::path place = m_path;
    std::error_code error;
    for (int links = 0; links < mostLinks; ++links) {
        const fs::path next = fs::read_symlink(place, error);
        if (error) return place.string();
        place = place.parent_path() / next;
    }
    return m_path;
}

bool WholeFile::isAbsent() const { return !statusOf(m_path) && (errno == ENOENT || errno == ENOTDIR); }

Result<std::string> WholeFile::read(std::size_t most) const {
    const auto file = openRegularFile(m_path);
    if (!file) return cannotBeRead(file.error());
    auto content = contentOf(file.value(), most);
    if (!content) return cannotBeRead(content.error());
    if (content.value().size() <= most) return content;
    return tooLarge(most);
}

Error WholeFile::tooLarge(std::size_t most) const {
    //: %1 is a number.
    return cannotBeRead({sentence("Files", "It is larger than %1 MiB").arg(std::to_string(most >> 20U)),
                         sentence("Files", "Choose a smaller file.")});
}

Result<> WholeFile::write(std::string_view content, std::optional<mode_t> mode) const {
    const std::string file = target();
    const auto before = statusOf(file);
    if (!before && errno != ENOENT) return cannotBeWritten({systemsCause(), ""});
    if (before) {
        const std::string obstacle = obstacleAt(file);
        if (!obstacle.empty()) return cannotBeWritten({obstacle, sentence("Files", "Choose another name.")});
        // A new file could take the place of a write-protected one all the same.
        if (access(file.c_str(), W_OK) != 0) return cannotBeWritten({systemsCause(), ""});
        if (!mode) mode = before->st_mode & 07777U;
    }
    removeLeftovers();
    FileReplacement replacement(file);
    // It is in the saver's group at first.
    const auto finished =
        replacement.finish(content, before ? withoutGroup(*mode) : mode.value_or(modeOfNewFiles));
    if (!finished) return cannotBeWritten(finished.error());
    if (!before) return {};
    const bool isKept = keepOwner(file, *before);
    chmod(file.c_str(), isKept ? *mode : withoutGroup(*mode));
    return {};
}

void WholeFile::removeLeftovers() const { FileReplacement::sweep(fs::path(target()).parent_path()); }

Error WholeFile::cannotBeRead(const Error& cause) const {
    const Sentence access = sentence("Files", "Check that the file is there and who may read it.");
    return {unreadable(m_kind).arg(m_path).arg(cause.message), cause.hint.empty() ? access : cause.hint};
}

Error WholeFile::cannotBeWritten(const Error& cause) const {
    const Sentence access =
        sentence("Files", "Make room, check who may write there, or choose another place.");
    return {unwritable(m_kind).arg(m_path).arg(cause.message), cause.hint.empty() ? access : cause.hint};
}
