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
#include "platform/linux/GLibPointers.h"
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

/// What another user's file is has to stay theirs; only root can see to that, and only root needs to.
void keepOwner(const std::string& file, const struct stat& before) {
    if (before.st_uid != geteuid() && lchown(file.c_str(), before.st_uid, before.st_gid) != 0) return;
}

/// So that the new name is on the disk as well as the content. The content is safe without it.
void syncFolderOf(const std::string& path) {
    const Descriptor folder(open(fs::path(path).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) fsync(folder.number());
}

/// The name of a file that GLib writes first and renames then: NAME.XXXXXX.
bool isLeftover(const std::string& candidate, const std::string& name) {
    const std::string start = name + ".";
    if (!candidate.starts_with(start) || candidate.size() != start.size() + 6) return false;
    const auto isRandom = [](char letter) { return g_ascii_isupper(letter) || g_ascii_isdigit(letter); };
    return std::all_of(candidate.end() - 6, candidate.end(), isRandom);
}

}  // namespace

WholeFile::WholeFile(std::string path, std::string kind) : m_path(std::move(path)), m_kind(std::move(kind)) {}

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
    if (!file) return cannot("read", file.error());
    auto content = contentOf(file.value(), most);
    if (!content) return cannot("read", content.error());
    if (content.value().size() <= most) return content;
    return cannot("read",
                  {"It is larger than " + std::to_string(most >> 20U) + " MiB", "Choose a smaller file."});
}

Result<> WholeFile::write(std::string_view content, std::optional<mode_t> mode) const {
    const std::string file = target();
    const auto before = statusOf(file);
    if (!before && errno != ENOENT) return cannot("written", {systemsCause(), ""});
    if (before) {
        const std::string obstacle = obstacleAt(file);
        if (!obstacle.empty()) return cannot("written", {obstacle, "Choose another name."});
        // A new file could take the place of a write-protected one all the same.
        if (access(file.c_str(), W_OK) != 0) return cannot("written", {systemsCause(), ""});
        if (!mode) mode = before->st_mode & 07777U;
    }
    constexpr auto flags =
        static_cast<GFileSetContentsFlags>(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
    GError* error = nullptr;
    if (g_file_set_contents_full(file.c_str(), content.data(), static_cast<gssize>(content.size()), flags,
                                 static_cast<int>(mode.value_or(modeOfNewFiles)), &error) == FALSE) {
        return cannot("written", {causeOf(*GFailure(error)), ""});
    }
    // The umask may have taken its share.
    if (before) keepOwner(file, *before);
    if (mode) chmod(file.c_str(), *mode);
    syncFolderOf(file);
    return {};
}

void WholeFile::removeLeftovers() const {
    const fs::path file = target();
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(file.parent_path(), error)) {
        const bool isFile = entry.symlink_status(error).type() == fs::file_type::regular;
        if (isFile && isLeftover(entry.path().filename(), file.filename())) fs::remove(entry.path(), error);
    }
}

Error WholeFile::cannot(const std::string& verb, const Error& cause) const {
    const std::string access = verb == "read"
                                   ? "Check that the file is there and who may read it."
                                   : "Make room, check who may write there, or choose another place.";
    return {"The " + m_kind + " " + m_path + " cannot be " + verb + ": " + cause.message,
            cause.hint.empty() ? access : cause.hint};
}
