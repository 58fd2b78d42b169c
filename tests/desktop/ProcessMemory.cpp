// SPDX-License-Identifier: MIT
#include "desktop/ProcessMemory.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

#include "platform/Descriptor.h"

namespace {

using Bytes = ProcessMemory::Bytes;

/// How many bytes of the sequence, from number `first` on, lie from `start` on at that distance.
std::size_t runLength(const Bytes& content, std::size_t start, std::size_t stride, const Bytes& sequence,
                      std::size_t first) {
    std::size_t length = 0;
    for (std::size_t at = start; first + length < sequence.size() && at < content.size(); at += stride) {
        if (content[at] != sequence[first + length]) break;
        ++length;
    }
    return length;
}

/// One who stands at another's start already counted.
bool isContinued(const Bytes& content, std::size_t start, std::size_t stride, const Bytes& sequence,
                 std::size_t first) {
    return first > 0 && start >= stride && content[start - stride] == sequence[first - 1];
}

/// Where each byte stands in the sequence; its size for those that it has not.
std::array<std::size_t, 256> placesIn(const Bytes& sequence) {
    std::array<std::size_t, 256> places{};
    places.fill(sequence.size());
    for (std::size_t place = 0; place < sequence.size(); ++place) places.at(sequence[place]) = place;
    return places;
}

}  // namespace

ProcessMemory::ProcessMemory(pid_t process) {
    const std::string folder = "/proc/" + std::to_string(process);
    const Descriptor memory(open((folder + "/mem").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_TRUE(memory) << "the memory cannot be read";
    std::ifstream maps(folder + "/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream fields(line);
        std::uint64_t start = 0;
        std::uint64_t end = 0;
        char dash = 0;
        std::string access;
        fields >> std::hex >> start >> dash >> end >> access;
        if (access != "rw-p") continue;
        Region region{start, Bytes(end - start)};
        const ssize_t count =
            pread(memory.number(), region.content.data(), region.content.size(), static_cast<off_t>(start));
        region.content.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        m_regions.push_back(std::move(region));
    }
}

std::vector<std::string> ProcessMemory::traces(const Bytes& sequence, std::size_t fewest) const {
    std::vector<std::string> found;
    const auto places = placesIn(sequence);
    for (const auto& [address, content] : m_regions) {
        for (std::size_t start = 0; start < content.size(); ++start) {
            const std::size_t first = places.at(content[start]);
            if (first + fewest > sequence.size()) continue;
            for (std::size_t stride = 1; stride <= longestStride; ++stride) {
                const std::size_t length = runLength(content, start, stride, sequence, first);
                if (length < fewest || isContinued(content, start, stride, sequence, first)) continue;
                std::ostringstream line;
                line << std::hex << address + start << std::dec << ": stride " << stride << ", from number "
                     << first << " on, " << length << " long";
                found.push_back(line.str());
            }
        }
    }
    return found;
}
