// SPDX-License-Identifier: MIT
#include "ProcessFigures.h"

#include <fcntl.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "platform/Descriptor.h"

namespace {

constexpr double kibibytesInMebibyte = 1024;

std::string fileOf(pid_t process, const std::string& name) {
    return "/proc/" + std::to_string(process) + "/" + name;
}

/// The number behind a word of a file of /proc, "VmRSS:    4711 kB".
double numberIn(const std::string& file, const std::string& wanted) {
    std::ifstream stream(file);
    for (std::string word; stream >> word;) {
        double number = 0;
        if (word == wanted && stream >> number) return number;
    }
    throw std::runtime_error("no " + wanted + " in " + file);
}

pid_t parentOf(const std::string& process) {
    std::ifstream status("/proc/" + process + "/status");
    for (std::string word; status >> word;) {
        pid_t parent = 0;
        if (word == "PPid:" && status >> parent) return parent;
    }
    return 0;
}

}  // namespace

double residentMebibytes(pid_t process) {
    return numberIn(fileOf(process, "status"), "VmRSS:") / kibibytesInMebibyte;
}

std::vector<pid_t> familyOf(pid_t process) {
    std::vector<pid_t> family{process};
    for (std::size_t i = 0; i < family.size(); ++i) {
        for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
            const std::string name = entry.path().filename();
            const bool isProcess = name.find_first_not_of("0123456789") == std::string::npos;
            if (isProcess && parentOf(name) == family[i]) family.push_back(std::stoi(name));
        }
    }
    return family;
}

double proportionalMebibytes(const std::vector<pid_t>& processes) {
    double sum = 0;
    for (const pid_t process : processes) sum += numberIn(fileOf(process, "smaps_rollup"), "Pss:");
    return sum / kibibytesInMebibyte;
}

std::map<pid_t, std::uint64_t> contextSwitches(pid_t process) {
    std::map<pid_t, std::uint64_t> switches;
    for (const auto& thread : std::filesystem::directory_iterator(fileOf(process, "task"))) {
        const std::string status = thread.path() / "status";
        const double sum =
            numberIn(status, "voluntary_ctxt_switches:") + numberIn(status, "nonvoluntary_ctxt_switches:");
        switches[std::stoi(thread.path().filename())] = static_cast<std::uint64_t>(sum);
    }
    return switches;
}

std::uint64_t contextSwitchesSince(const std::map<pid_t, std::uint64_t>& before, pid_t process) {
    const auto now = contextSwitches(process);
    std::uint64_t sum = 0;
    for (const auto& [thread, switches] : now) {
        const auto earlier = before.find(thread);
        sum += switches - (earlier == before.end() ? 0 : earlier->second);
    }
    for (const auto& [thread, switches] : before) sum += now.contains(thread) ? 0 : 1;
    return sum;
}

double mebibytesFromDisk(pid_t process) {
    return numberIn(fileOf(process, "io"), "read_bytes:") / (kibibytesInMebibyte * kibibytesInMebibyte);
}

std::vector<std::string> filesInMemoryOf(pid_t process) {
    std::set<std::string> files;
    std::ifstream maps(fileOf(process, "maps"));
    for (std::string line; std::getline(maps, line);) {
        const std::size_t path = line.find('/');
        if (path != std::string::npos && std::filesystem::is_regular_file(line.substr(path)))
            files.insert(line.substr(path));
    }
    return {files.begin(), files.end()};
}

void dropFromCache(const std::string& file) {
    const Descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (descriptor) posix_fadvise(descriptor.number(), 0, 0, POSIX_FADV_DONTNEED);
}
