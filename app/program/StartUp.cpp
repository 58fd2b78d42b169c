// SPDX-License-Identifier: MIT
#include "app/program/StartUp.h"

#include <dlfcn.h>

#include <QLatin1String>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/ErrorText.h"
#include "platform/TerminalText.h"
#include "platform/linux/StandardStreams.h"

namespace {

/// A library, if the process has loaded it.
class Loaded {
  public:
    explicit Loaded(const char* name) : m_library(dlopen(name, RTLD_LAZY | RTLD_NOLOAD)) {}
    ~Loaded() {
        if (m_library != nullptr) dlclose(m_library);
    }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    explicit operator bool() const { return m_library != nullptr; }
    /// Null without it.
    void* function(const char* name) const { return m_library == nullptr ? nullptr : dlsym(m_library, name); }

  private:
    void* m_library;
};

/// The toolkit complains of each platform that it tries in vain.
std::string platformsOf(const SessionKind& kind) {
    constexpr std::string_view xServer = "xcb;";
    const std::string_view platforms = kind.toolkit;
    const char* const display = std::getenv("DISPLAY");
    const bool hasXServer = display != nullptr && *display != '\0';
    return std::string(!hasXServer && platforms.starts_with(xServer) ? platforms.substr(xServer.size())
                                                                     : platforms);
}

QtMessageHandler otherMessages = nullptr;

/// Wayland compositors give no window an opacity, of which the toolkit would tell at each step of a fade.
void leaveOutFades(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text == QLatin1String("This plugin does not support setting window opacity")) return;
    otherMessages(type, context, text);
}

}  // namespace

void prepareProcess() { occupyStandardStreams(); }

void endInOrderWithServer() {
    const Loaded toolkit("libgdk-3.so.0");
    const Loaded library("libX11.so.6");
    using Handler = int (*)(void* display);
    using Setter = Handler (*)(Handler);
    void* const setter = toolkit ? library.function("XSetIOErrorHandler") : nullptr;
    // Without one the library calls exit().
    if (setter != nullptr) reinterpret_cast<Setter>(setter)(nullptr);
}

int reportFailure(const Error& error) {
    std::fprintf(stderr, "keyrill: %s\n", harmlessText(inOneParagraph(error)).c_str());
    return EXIT_FAILURE;
}

Result<SessionKind> enterSession(std::string_view name) {
    auto kind = chooseSession(name);
    // The toolkit would take another display that is offered too.
    if (!kind) return kind;
    setenv("QT_QPA_PLATFORM", platformsOf(kind.value()).c_str(), 1);
    if (otherMessages == nullptr) otherMessages = qInstallMessageHandler(leaveOutFades);
    return kind;
}
