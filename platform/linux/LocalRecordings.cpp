// SPDX-License-Identifier: MIT
#include "platform/linux/LocalRecordings.h"

#include <glib.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/Sentence.h"
#include "platform/linux/FileReplacement.h"
#include "platform/linux/GLibPointers.h"
#include "platform/linux/WholeFile.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ending = "Z.keyrill";
constexpr std::string_view comment = "-- ";
constexpr std::size_t millisecondDigits = 3;

using DateTime = std::unique_ptr<GDateTime, FreeBy<g_date_time_unref>>;

std::string nameOf(RecordedAt time) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    const DateTime date(g_date_time_new_from_unix_utc(seconds.time_since_epoch().count()));
    const GText second(g_date_time_format(date.get(), "%Y%m%dT%H%M%S"));
    std::string milliseconds = std::to_string((time - seconds).count());
    milliseconds.insert(0, millisecondDigits - milliseconds.size(), '0');
    return second.get() + ("." + milliseconds) + std::string(ending);
}

/// Empty for a name that is none of ours.
std::optional<RecordedAt> timeOf(const std::string& name) {
    const std::string text = name.substr(0, name.find(".keyrill"));
    const DateTime date(g_date_time_new_from_iso8601(text.c_str(), nullptr));
    if (!date) return std::nullopt;
    const RecordedAt time = std::chrono::sys_seconds(std::chrono::seconds(g_date_time_to_unix(date.get()))) +
                            std::chrono::milliseconds((g_date_time_get_microsecond(date.get()) + 500) / 1000);
    // Only what is written just so.
    if (nameOf(time) != name) return std::nullopt;
    return time;
}

std::string inOneLine(std::string title) {
    std::replace_if(
        title.begin(), title.end(), [](char character) { return character == '\n' || character == '\r'; },
        ' ');
    return title;
}

}  // namespace

LocalRecordings::LocalRecordings(const std::string& stateFolder) : m_folder(stateFolder + "/history") {}

std::vector<std::string> LocalRecordings::names() const {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(m_folder, error), end; !error && entry != end; entry.increment(error)) {
        std::string name = entry->path().filename();
        if (timeOf(name)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<StoredRecording> LocalRecordings::all() {
    FileReplacement::sweep(m_folder);
    std::vector<StoredRecording> recordings;
    for (const std::string& name : names()) {
        auto content = WholeFile(fileOf(name)).read();
        if (!content || !content.value().starts_with(comment)) continue;
        const std::string& text = content.value();
        const std::size_t lineEnd = text.find('\n');
        if (lineEnd == std::string::npos) continue;
        recordings.push_back({.name = name,
                              .recordedAt = *timeOf(name),
                              .title = text.substr(comment.size(), lineEnd - comment.size()),
                              .script = text.substr(lineEnd + 1)});
    }
    std::reverse(recordings.begin(), recordings.end());
    if (recordings.size() > most) recordings.resize(most);
    return recordings;
}

std::string LocalRecordings::freeName(RecordedAt time) const {
    std::string name = nameOf(time);
    std::error_code error;
    while (fs::exists(fs::symlink_status(fileOf(name), error))) {
        time += std::chrono::milliseconds(1);
        name = nameOf(time);
    }
    return name;
}

Result<std::string> LocalRecordings::keep(const StoredRecording& recording) {
    constexpr int folderMode = 0700;
    if (g_mkdir_with_parents(m_folder.c_str(), folderMode) != 0) {
        //: %2 is why, in the system's words.
        return Error{
            sentence("Folders", "The folder %1 cannot be made: %2").arg(m_folder).arg(std::strerror(errno)),
            sentence("Folders", "Make room, or check who may write there.")};
    }
    const std::string name = freeName(recording.recordedAt);
    const Result<> written =
        WholeFile(fileOf(name))
            .write(std::string(comment) + inOneLine(recording.title) + "\n" + recording.script);
    if (!written) return written.error();
    std::vector<std::string> others = names();
    std::erase(others, name);
    // One that cannot go now goes with the next.
    for (std::size_t i = 0; i + most <= others.size(); ++i) static_cast<void>(forget(others[i]));
    return name;
}

Result<> LocalRecordings::forget(const std::string& name) {
    const std::string file = fileOf(name);
    if (!timeOf(name) || unlink(file.c_str()) == 0 || errno == ENOENT) return {};
    //: %2 is why, in the system's words.
    return Error{sentence("Files", "The file %1 cannot be deleted: %2").arg(file).arg(std::strerror(errno)),
                 sentence("Files", "Check who may write to its folder, or delete it yourself.")};
}

Result<> LocalRecordings::forgetAll() {
    FileReplacement::sweep(m_folder);
    Result<> forgotten;
    for (const std::string& name : names()) {
        const Result<> one = forget(name);
        if (!one && forgotten) forgotten = one;
    }
    return forgotten;
}
