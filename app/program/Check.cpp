// SPDX-License-Identifier: MIT
#include "app/program/Check.h"

#include <QDBusConnection>
#include <algorithm>
#include <cstdio>
#include <iterator>
#include <sstream>
#include <string>

#include "app/check/SessionReport.h"
#include "app/program/CommandLine.h"
#include "app/program/InstanceLock.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/StartUp.h"
#include "app/tray/StatusNotifierHosts.h"
#include "platform/linux/ConfigFolders.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/SteadyClock.h"
#include "platform/sessions/Sessions.h"

namespace {

constexpr int cannotTell = 2;

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The tray that the session itself does not know of.
void findStatusNotifier(SessionFacts& facts, const QDBusConnection& bus) {
    if (facts.capabilities.tray.extent != Extent::fully && hasStatusNotifierHost(bus)) {
        facts.capabilities.tray = {Extent::fully, Means::statusNotifier, Lack::nothing};
    }
}

/// What the user has decided the session does not know.
void findConsent(CapabilityState& hotKeys) {
    if (hotKeys.means != Means::gnomeBindings) return;
    const KeyFileSettings settings(configFoldersOfProcess(), KeyFileSettings::Use::readOnly);
    const bool isGiven = settings.integer("writeHotKeys").value_or(0) != 0;
    if (!isGiven) hotKeys = {Extent::nothing, Means::none, Lack::consent};
}

/// Elsewhere to ask for a combination could take it from the program that runs.
bool canBeAskedFor(const CapabilityState& hotKeys) {
    return hotKeys.means == Means::xGrab || hotKeys.means == Means::swayBindings ||
           hotKeys.means == Means::kdeShortcuts;
}

std::vector<HotKeyFact> hotKeysOf(const SessionKind& kind, const std::vector<std::string>& ours) {
    SteadyClock clock;
    const auto session = kind.open(clock, SessionUse::check);
    if (!session) return {};
    const KeyFileSettings settings(configFoldersOfProcess(), KeyFileSettings::Use::readOnly);
    const SessionServices& services = session.value()->sessionServices();
    return probeHotKeys(settings, services.hotKeys, services.keyboardLayout, ours);
}

SessionFacts factsOf(const CommandLine& line) {
    SessionFacts facts;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    facts.hasSessionBus = bus.isConnected();
    const Environment environment = environmentOfProcess();
    const auto running = InstanceLock::noteOfOther(environment("XDG_RUNTIME_DIR"), environment("DISPLAY"));
    facts.isRunning = running.has_value();
    const auto kind = chooseSession(line.session);
    if (!kind) {
        facts.noSession = kind.error();
        return facts;
    }
    facts.kind = kind.value().name;
    const auto check = kind.value().examine();
    facts.capabilities = check->capabilities();
    facts.details = check->details();
    findStatusNotifier(facts, bus);
    findConsent(facts.capabilities.hotKeys);
    if (canBeAskedFor(facts.capabilities.hotKeys)) {
        facts.hotKeys = hotKeysOf(kind.value(), wordsOf(running.value_or("")));
    }
    return facts;
}

}  // namespace

int checkSession(const CommandLine& line) {
    const auto known = checkOwnOptions(line);
    if (!known) {
        reportFailure(known.error());
        return cannotTell;
    }
    avoidHangingSessionBus();
    const std::vector<ReportLine> report = sessionReport(factsOf(line));
    const std::string text = reportText(report);
    const bool isPrinted = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return isPrinted ? reportStatus(report) : cannotTell;
}
