// SPDX-License-Identifier: MIT
#include "cli/ScriptFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "platform/Encoding.h"
#include "platform/script/code/Compiler.h"

namespace {

/// An open file; standard input stays open.
class Descriptor {
  public:
    explicit Descriptor(const std::string& file)
        : m_number(file == "-" ? STDIN_FILENO : ::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~Descriptor() {
        if (m_number > STDIN_FILENO) ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }

  private:
    int m_number;
};

Error systemError() { return {std::strerror(errno), ""}; }

}  // namespace

Result<std::string> readScript(const std::string& file) {
    const Descriptor descriptor(file);
    if (descriptor.number() < 0) return systemError();
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (bytes.size() <= script::maxSourceSize) {
        const ssize_t count = ::read(descriptor.number(), buffer.data(), buffer.size());
        if (count == 0) break;
        if (count > 0) bytes.append(buffer.data(), static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) return systemError();
    }
    return decodedText(std::move(bytes));
}
