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

namespace fs = std::filesystem;

namespace {

constexpr off_t greatestSize = off_t{64} * 1024 * 1024;
constexpr mode_t modeOfNewFiles = 0600;

constexpr const char* aFolder = "It is a folder";
constexpr const char* noRegularFile = "It is not a regular file";

std::string systemsCause() { return std::strerror(errno); }

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

/// Why a thing can be neither read nor replaced as a file; empty if it can.
std::string obstacle(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return aFolder;
    return S_ISREG(status.st_mode) ? "" : noRegularFile;
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

Result<std::string> WholeFile::read() const {
    // Looked at first, because a pipe without a writer would hold the program up.
    const auto status = statusOf(m_path);
    if (!status) return cannot("read", systemsCause());
    const std::string cause = status->st_size > greatestSize ? "It is larger than 64 MiB" : obstacle(*status);
    if (!cause.empty()) return cannot("read", cause);
    char* content = nullptr;
    gsize length = 0;
    GError* error = nullptr;
    if (g_file_get_contents(m_path.c_str(), &content, &length, &error) == FALSE) {
        return cannot("read", causeOf(*GFailure(error)));
    }
    const GText owned(content);
    return std::string(content, length);
}

Result<> WholeFile::write(std::string_view content, std::optional<mode_t> mode) const {
    const std::string file = target();
    const auto before = statusOf(file);
    if (!before && errno != ENOENT) return cannot("written", systemsCause());
    if (before) {
        const std::string cause = obstacle(*before);
        if (!cause.empty()) return cannot("written", cause);
        // A new file could take the place of a write-protected one all the same.
        if (access(file.c_str(), W_OK) != 0) return cannot("written", systemsCause());
        if (!mode) mode = before->st_mode & 07777U;
    }
    constexpr auto flags =
        static_cast<GFileSetContentsFlags>(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
    GError* error = nullptr;
    if (g_file_set_contents_full(file.c_str(), content.data(), static_cast<gssize>(content.size()), flags,
                                 static_cast<int>(mode.value_or(modeOfNewFiles)), &error) == FALSE) {
        return cannot("written", causeOf(*GFailure(error)));
    }
    // The umask may have taken its share.
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

Error WholeFile::cannot(const std::string& verb, const std::string& cause) const {
    const bool isRead = verb == "read";
    const bool isOfWrongKind = cause == aFolder || cause == noRegularFile;
    const std::string wrongKind = isRead ? "Choose a file." : "Choose another name.";
    const std::string hint = isOfWrongKind ? wrongKind
                             : isRead      ? "Check that the file is there and who may read it."
                                           : "Make room, check who may write there, or choose another place.";
    return {"The " + m_kind + " " + m_path + " cannot be " + verb + ": " + cause, hint};
}
