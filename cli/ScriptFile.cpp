// SPDX-License-Identifier: MIT
#include "cli/ScriptFile.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/Encoding.h"
#include "platform/Sentence.h"
#include "platform/linux/RegularFile.h"
#include "platform/script/code/Compiler.h"

namespace {

Error systemError() { return {std::strerror(errno), ""}; }

/// Up to one byte more than a script may have.
Result<std::string> bytesOf(int descriptor) {
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (bytes.size() <= script::maxSourceSize) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count == 0) break;
        if (count > 0) bytes.append(buffer.data(), static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) return systemError();
    }
    return bytes;
}

Result<std::string> bytesOfFile(const std::string& file) {
    const auto opened = openRegularFile(file);
    if (opened) return bytesOf(opened.value().number());
    const bool isOfWrongKind = !opened.error().hint.empty();
    const Sentence& message = opened.error().message;
    return Error{isOfWrongKind ? sentence("ScriptTool", "%1; standard input is \"-\"").arg(message) : message,
                 ""};
}

}  // namespace

Result<ScriptText> readScript(const std::string& file) {
    auto bytes = file == "-" ? bytesOf(STDIN_FILENO) : bytesOfFile(file);
    if (!bytes) return bytes.error();
    ScriptText script;
    // What was cut off may have been cut within a character.
    const bool isWhole = bytes.value().size() <= script::maxSourceSize;
    if (const auto offset = firstMacRomanByte(bytes.value()); offset && isWhole) {
        const std::string toThere = decodedText(bytes.value().substr(0, *offset + 1));
        script.noUtf8 = script::locate(toThere, toThere.size());
        --script.noUtf8->column;
    }
    script.text = decodedText(std::move(bytes).value());
    return script;
}
