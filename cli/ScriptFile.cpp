// SPDX-License-Identifier: MIT
#include "cli/ScriptFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "platform/Descriptor.h"
#include "platform/Encoding.h"
#include "platform/script/code/Compiler.h"

namespace {

Error systemError() { return {std::strerror(errno), ""}; }

}  // namespace

Result<std::string> readScript(const std::string& file) {
    const bool isStandardInput = file == "-";
    const Descriptor opened(isStandardInput ? -1 : ::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!isStandardInput && !opened) return systemError();
    const int descriptor = isStandardInput ? STDIN_FILENO : opened.number();
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (bytes.size() <= script::maxSourceSize) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count == 0) break;
        if (count > 0) bytes.append(buffer.data(), static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) return systemError();
    }
    return decodedText(std::move(bytes));
}
