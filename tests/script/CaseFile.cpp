// SPDX-License-Identifier: MIT
#include "script/CaseFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "platform/script/source/Location.h"
#include "script/Traced.h"

namespace {

using Pair = std::pair<std::string, std::string>;

const std::array<Pair, 3> signs{{{"↵", "\n"}, {"⇥", "\t"}, {"␍", "\r"}}};
const std::string mark = "‸";
const std::string systemEvents = "tell application \"System Events\"\n";

const std::array<std::pair<std::string, FileCase::Kind>, 4> arrows{{{"=>", FileCase::Kind::value},
                                                                    {"->", FileCase::Kind::events},
                                                                    {"=!", FileCase::Kind::runError},
                                                                    {"=?", FileCase::Kind::compileError}}};

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Where an arrow stands by itself.
std::size_t findArrow(const std::string& line, const std::string& arrow) {
    if (line.rfind(arrow, 0) == 0) return 0;
    const auto within = line.find(" " + arrow + " ");
    if (within != std::string::npos) return within + 1;
    const bool last =
        line.size() > arrow.size() && line.substr(line.size() - arrow.size() - 1) == " " + arrow;
    return last ? line.size() - arrow.size() : std::string::npos;
}

/// Cuts the first arrow and what is behind it off a line.
std::pair<FileCase::Kind, std::string> takeExpectation(std::string& line) {
    std::size_t first = std::string::npos;
    FileCase::Kind kind = FileCase::Kind::value;
    for (const auto& [arrow, meaning] : arrows) {
        const std::size_t at = findArrow(line, arrow);
        if (at >= first) continue;
        first = at;
        kind = meaning;
    }
    if (first == std::string::npos) throw std::runtime_error("a case without an arrow: " + line);
    const std::string expected = line.substr(first + 2);
    line = line.substr(0, first == 0 ? 0 : first - 1);
    return {kind, trimmed(expected)};
}

FileCase readCase(std::string line, bool insideTell) {
    FileCase row;
    if (line.rfind("~ ", 0) == 0) {
        row.isPending = true;
        line.erase(0, 2);
    }
    std::tie(row.kind, row.expected) = takeExpectation(line);
    if (row.kind == FileCase::Kind::events) {
        row.events = row.expected;
        if (findArrow(row.expected, "=!") != std::string::npos) {
            std::tie(row.kind, row.expected) = takeExpectation(*row.events);
            row.events = trimmed(*row.events);
        }
    }
    for (const auto& [sign, meant] : signs) line = replaced(line, sign, meant);
    row.source = insideTell ? systemEvents + line + "\nend tell" : line;
    const auto at = row.source.find(mark);
    if (at == std::string::npos) return row;
    row.source.erase(at, mark.size());
    const script::Location place = script::locate(row.source, at);
    row.place = std::to_string(place.line) + ":" + std::to_string(place.column);
    return row;
}

void readFile(const std::filesystem::path& path, std::vector<FileCase>& rows) {
    std::ifstream file(path);
    std::string line;
    bool insideTell = false;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line == "@se" || line == "@top") insideTell = line == "@se";
        const bool comment = line.rfind("# ", 0) == 0 || line.empty() || line.front() == '@';
        if (comment) continue;
        rows.push_back(readCase(line, insideTell));
        rows.back().name = path.stem().string() + "_" + std::to_string(number);
    }
}

std::string eventsOf(const Traced& result) {
    std::string events = result.events;
    if (!events.empty()) events.pop_back();
    for (char& c : events) c = c == '\n' ? ' ' : c;
    return events;
}

std::string placeOf(const Traced& result) {
    return std::to_string(result.error.location.line) + ":" + std::to_string(result.error.location.column);
}

}  // namespace

std::string outcomeOf(const FileCase& row) {
    const Traced result = traced(row.source);
    const bool failed = result.phase != Traced::Phase::none;
    if (failed) {
        const std::string arrow = result.phase == Traced::Phase::compile ? "=? " : "=! ";
        const std::string place = row.place.empty() ? "" : placeOf(result) + " ";
        const std::string events = row.events ? eventsOf(result) + " " : "";
        return events + arrow + place + std::to_string(result.error.number) + " " +
               result.error.message.english();
    }
    if (row.kind == FileCase::Kind::events) return "-> " + eventsOf(result);
    return "=> " + onOneLine(result.value);
}

std::string expectationOf(const FileCase& row) {
    const std::string place = row.place.empty() ? "" : row.place + " ";
    const std::string events = row.events ? *row.events + " " : "";
    switch (row.kind) {
        case FileCase::Kind::value:
            return "=> " + row.expected;
        case FileCase::Kind::events:
            return "-> " + row.events.value_or("");
        case FileCase::Kind::runError:
            return events + "=! " + place + row.expected;
        default:
            return "=? " + place + row.expected;
    }
}

FileCase caseOf(const std::string& line) { return readCase(line, false); }

std::ostream& operator<<(std::ostream& out, const FileCase& row) { return out << row.name; }

std::vector<FileCase> readCaseFiles(const std::string& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".cases") paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<FileCase> rows;
    for (const auto& path : paths) readFile(path, rows);
    return rows;
}

std::string onOneLine(const std::string& text) {
    std::string line = text;
    for (const auto& [sign, meant] : signs) line = replaced(line, meant, sign);
    return line;
}
