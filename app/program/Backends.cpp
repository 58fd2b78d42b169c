// SPDX-License-Identifier: MIT
#include "app/program/Backends.h"

#include <utility>

#include "app/library/LibraryController.h"
#include "app/program/LinuxServices.h"
#include "platform/Addresses.h"
#include "platform/HotKeyShares.h"
#include "platform/Services.h"
#include "platform/Session.h"
#include "platform/linux/SteadyClock.h"
#include "platform/script/run/ScriptRunner.h"
#include "platform/sessions/Sessions.h"

struct Backends::Parts {
    Parts(std::string_view name, std::unique_ptr<SteadyClock> steadyClock, std::unique_ptr<Session> opened,
          const UpdateSource& updates)
        : sessionName(name), clock(std::move(steadyClock)), session(std::move(opened)), neutral(updates) {
        session->endPlaysWhen(
            [this] { return neutral.screenLock.isLocked() || (isPlayOver && isPlayOver()); });
    }
    ~Parts() { session->endPlaysWhen({}); }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    std::string sessionName;
    std::unique_ptr<SteadyClock> clock;
    std::unique_ptr<Session> session;
    const SessionServices& own = session->sessionServices();
    script::ScriptRunner scripting{own.keyInjector, own.scriptDesktop};
    LinuxServices neutral;
    std::function<bool()> isPlayOver;
    HotKeyShares hotKeys{own.hotKeys};
    Services services{.clock = *clock,
                      .eventMonitor = own.eventMonitor,
                      .hotKeys = hotKeys.first(),
                      .keyboardLayout = own.keyboardLayout,
                      .keyInjector = own.keyInjector,
                      .scripting = scripting,
                      .settings = neutral.settings,
                      .loginItems = neutral.loginItems,
                      .workspace = neutral.workspace,
                      .systemFacts = neutral.systemFacts,
                      .updateService = *neutral.updateService,
                      .macroFiles = neutral.macroFiles,
                      .notifications = neutral.notifications,
                      .screenLock = neutral.screenLock,
                      .sessionCheck = own.sessionCheck,
                      .layers = own.layers};
    ServicesScope scope{services};
};

Result<std::unique_ptr<Backends>> Backends::open(const SessionKind& kind) {
    return open(kind, std::string(addresses::updateServiceUrl), {});
}

Result<std::unique_ptr<Backends>> Backends::open(const SessionKind& kind, const std::string& updateUrl,
                                                 const std::string& authorities) {
    auto clock = std::make_unique<SteadyClock>();
    auto session = kind.open(*clock, SessionUse::desktop);
    if (!session) return session.error();
    return std::unique_ptr<Backends>(new Backends(std::make_unique<Parts>(
        kind.name, std::move(clock), std::move(session).value(), UpdateSource{updateUrl, authorities})));
}

Backends::Backends(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
Backends::~Backends() = default;

const std::string& Backends::sessionName() const { return m_parts->sessionName; }
Services& Backends::services() { return m_parts->services; }
Session& Backends::session() { return *m_parts->session; }
script::ScriptRunner& Backends::scripting() { return m_parts->scripting; }
LibraryServices Backends::libraryServices() {
    return {.folderFollower = m_parts->neutral.folderFollower,
            .macroRecords = m_parts->neutral.macroRecords,
            .recordings = m_parts->neutral.recordings,
            .macroFiles = m_parts->neutral.macroFiles,
            .hotKeys = m_parts->hotKeys.second(),
            .firstHotKey = HotKeyShares::firstOfSecond,
            .notifications = m_parts->neutral.notifications,
            .scripting = m_parts->scripting,
            .draftFolder = m_parts->neutral.stateFolder + "/unsaved"};
}

void Backends::endPlaysWhen(std::function<bool()> isOver) { m_parts->isPlayOver = std::move(isOver); }

std::vector<EventSource*> Backends::eventSources() {
    std::vector<EventSource*> sources = m_parts->session->eventSources();
    sources.push_back(&m_parts->neutral.busLoop);
    sources.push_back(&m_parts->neutral.folderFollower);
    return sources;
}
