// SPDX-License-Identifier: MIT
#include "platform/desktops/KWinScripts.h"

#include <poll.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Descriptor.h"
#include "platform/Sentence.h"
#include "platform/linux/ConfigFolders.h"

namespace {

/// Until KWin is asked in another way, and then.
constexpr std::chrono::milliseconds firstPatience{500};
constexpr std::chrono::milliseconds patience{1500};

constexpr const char* service = "org.kde.KWin";
constexpr const char* scripting = "/Scripting";
constexpr const char* scriptingFace = "org.kde.kwin.Scripting";
constexpr const char* unloading = "unloadScript";
/// Of the script that is run, and of the one that is kept. KWin loads no two of one name.
constexpr const char* scriptName = "example.orlen.Keyrill";
constexpr const char* keptName = "example.orlen.Keyrill.Kept";

/// Where the script tells us what it has found out.
constexpr const char* object = "/example/orlen/Keyrill/Script";
constexpr const char* face = "example.orlen.Keyrill.Script1";
constexpr const char* member = "Tell";

Error silent() {
    return {sentence("Windows", "KWin does not tell of its windows."), sentence("Windows", "Log in again.")};
}

/// A file that KWin, a process of the same user, reads; gone with the object.
class ScriptFile {
  public:
    explicit ScriptFile(const std::string& text) : m_name(folder() + "/keyrill-XXXXXX.js") {
        constexpr int suffix = 3;
        const Descriptor file(mkstemps(m_name.data(), suffix));
        m_isWritten =
            file && write(file.number(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
    }
    ~ScriptFile() {
        std::error_code gone;
        std::filesystem::remove(m_name, gone);
    }
    ScriptFile(const ScriptFile&) = delete;
    ScriptFile& operator=(const ScriptFile&) = delete;

    const std::string& name() const { return m_name; }
    bool isWritten() const { return m_isWritten; }

  private:
    static std::string folder() {
        const std::string named = environmentOfProcess()("XDG_RUNTIME_DIR");
        return named.starts_with('/') ? named : "/tmp";
    }

    std::string m_name;
    bool m_isWritten = false;
};

std::string callOf(const std::string& name, const char* path, const char* interface, const char* method,
                   const std::string& argument) {
    return "callDBus('" + name + "', '" + path + "', '" + interface + "', '" + method + "', " + argument +
           ");\n";
}

/// What fails in the statements is told as nothing.
std::string scriptOf(const std::string& statements, const std::string& teller) {
    return "function tell(text) { " + callOf(teller, object, face, member, "text") + "}\n" + "try {\n" +
           statements + "\n} catch (failure) { tell(''); }\n";
}

}  // namespace

bool KWinScripts::isThere(const SessionBus& bus) { return bus.has(service); }

KWinScripts::KWinScripts(const std::string& bus) : m_bus(bus) {
    [[maybe_unused]] const auto served =
        m_bus.serve(object, face, member, [this](const std::string& caller, const std::string& text) {
            // Everybody on the bus may call.
            if (caller != m_bus.ownerOf(service)) return;
            m_told = text;
            m_hasTold = true;
        });
}

KWinScripts::~KWinScripts() {
    if (m_keeps) unload(keptName);
}

Result<std::string> KWinScripts::run(const std::string& statements) {
    return start(statements, scriptName,
                 callOf(service, scripting, scriptingFace, unloading, "'" + std::string(scriptName) + "'"));
}

Result<void> KWinScripts::keep(const std::string& statements) {
    const auto started = start(statements + "\ntell('');", keptName, "");
    m_keeps = static_cast<bool>(started);
    if (!started) return started.error();
    return {};
}

Result<std::string> KWinScripts::start(const std::string& statements, const char* script,
                                       const std::string& end) {
    const ScriptFile file(scriptOf(statements, m_bus.ownName()) + end);
    if (!file.isWritten())
        return Error{sentence("Windows", "No file could be written for KWin."),
                     sentence("Windows", "Free some space.")};
    m_hasTold = false;
    if (const auto loaded = load(file.name(), script); !loaded) return loaded.error();
    auto told = await();
    if (!told) unload(script);
    return told;
}

bool KWinScripts::unload(const char* script) {
    const auto gone =
        m_bus.ask({service, scripting, scriptingFace, unloading}, g_variant_new("(s)", script), "(b)");
    return static_cast<bool>(gone);
}

Result<void> KWinScripts::load(const std::string& file, const char* script) {
    constexpr std::int32_t isLoadedAlready = -1;
    const auto loadIt = [&] {
        return m_bus.ask({service, scripting, scriptingFace, "loadScript"},
                         g_variant_new("(ss)", file.c_str(), script), "(i)");
    };
    std::int32_t number = isLoadedAlready;
    auto loaded = loadIt();
    if (loaded) g_variant_get(loaded.value().get(), "(i)", &number);
    if (loaded && number == isLoadedAlready) {
        if (unload(script)) loaded = loadIt();
        if (loaded) g_variant_get(loaded.value().get(), "(i)", &number);
    }
    if (!loaded)
        return Error{sentence("Windows", "KWin runs no scripts: %1").arg(loaded.error().message),
                     sentence("Windows", "Log in again.")};
    if (number == isLoadedAlready) return silent();
    // KWin 6 has its scripts in another place than KWin 5.
    for (const char* const folder : {"/", "/Scripting/Script"}) {
        const std::string path = folder + std::to_string(number);
        if (m_bus.ask({service, path.c_str(), "org.kde.kwin.Script", "run"}, nullptr, nullptr)) return {};
    }
    return silent();
}

/// KWin 5 gives a number twice where another script has gone meanwhile: the other one was run then. That KWin
/// runs all that do not run yet takes longer.
Result<std::string> KWinScripts::await() {
    updateUntil(std::chrono::steady_clock::now() + firstPatience);
    if (!m_hasTold) {
        [[maybe_unused]] const auto started =
            m_bus.ask({service, scripting, scriptingFace, "start"}, nullptr, nullptr);
        updateUntil(std::chrono::steady_clock::now() + patience);
    }
    if (!m_hasTold) return silent();
    return m_told;
}

void KWinScripts::updateUntil(std::chrono::steady_clock::time_point end) {
    for (m_bus.update(); !m_hasTold && std::chrono::steady_clock::now() < end; m_bus.update()) {
        constexpr int betweenLooks = 100;
        pollfd entry{.fd = m_bus.fileDescriptor(), .events = POLLIN, .revents = 0};
        poll(&entry, 1, betweenLooks);
    }
}
