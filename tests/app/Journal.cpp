// SPDX-License-Identifier: MIT
#include "app/Journal.h"

#include <utility>

JournalPlatform::JournalPlatform(FakePlatform& platform, Journal& journal)
    : session(platform.sessionCheck, journal),
      hotKeys(platform.hotKeys, journal),
      monitor(platform.eventMonitor, journal),
      settings(platform.settings, journal),
      loginItems(platform.loginItems, journal),
      services{.clock = platform.clock,
               .eventMonitor = monitor,
               .hotKeys = hotKeys,
               .keyboardLayout = platform.keyboardLayout,
               .keyInjector = platform.keyInjector,
               .scripting = platform.scripting,
               .settings = settings,
               .loginItems = loginItems,
               .workspace = platform.workspace,
               .systemFacts = platform.systemFacts,
               .updateService = platform.updateService,
               .macroFiles = platform.macroFiles,
               .notifications = platform.notifications,
               .screenLock = platform.screenLock,
               .sessionCheck = session} {}

Result<> JournalPlatform::Session::version() const {
    m_journal.emplace_back("check version");
    return m_inner.version();
}

Result<> JournalPlatform::Session::access() const {
    m_journal.emplace_back("check access");
    return m_inner.access();
}

void JournalPlatform::Keys::install(Handler pressed, Handler released) {
    m_journal.emplace_back("install hot-key handlers");
    m_inner.install(std::move(pressed), std::move(released));
}

void JournalPlatform::Keys::request(const HotKeyRequest& request) {
    m_journal.push_back("register " + request.name);
    m_inner.request(request);
}

Result<void> JournalPlatform::Monitor::install(Handler handler) {
    m_journal.emplace_back("install monitor");
    return m_inner.install(std::move(handler));
}

std::optional<std::int64_t> JournalPlatform::Settings::integer(const std::string& key) const {
    m_journal.push_back("read " + key);
    return m_inner.integer(key);
}

void JournalPlatform::Settings::setInteger(const std::string& key, std::int64_t value) {
    m_journal.push_back("write " + key + " " + std::to_string(value));
    m_inner.setInteger(key, value);
}

void JournalPlatform::Settings::setBool(const std::string& key, bool value) {
    m_journal.push_back("write " + key + (value ? " true" : " false"));
    m_inner.setBool(key, value);
}

Result<> JournalPlatform::Settings::synchronize() {
    m_journal.emplace_back("synchronize");
    return m_inner.synchronize();
}

Result<> JournalPlatform::Login::install(bool enable) {
    m_journal.emplace_back(enable ? "login item on" : "login item off");
    return m_inner.install(enable);
}
