// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/EventMonitor.h"
#include "platform/HotKeys.h"
#include "platform/LoginItems.h"
#include "platform/SessionCheck.h"
#include "platform/SettingsStore.h"
#include "platform/fake/FakePlatform.h"

using Journal = std::vector<std::string>;

/// The fake platform, seen through services that write down the order of what they are asked.
struct JournalPlatform {
    JournalPlatform(FakePlatform& platform, Journal& journal);

    class Session : public SessionCheck {
      public:
        Session(SessionCheck& inner, Journal& journal) : m_inner(inner), m_journal(journal) {}
        Result<> version() const override;
        Result<> access() const override;
        bool seesOnlySomeWindows() const override { return m_inner.seesOnlySomeWindows(); }

      private:
        SessionCheck& m_inner;
        Journal& m_journal;
    };

    class Keys : public HotKeys {
      public:
        Keys(HotKeys& inner, Journal& journal) : m_inner(inner), m_journal(journal) {}
        void install(Handler pressed, Handler released) override;
        void observe(Observer observer) override { m_inner.observe(std::move(observer)); }
        void request(const HotKeyRequest& request) override;
        void withdraw(HotKeyId id) override { m_inner.withdraw(id); }
        HotKeyState state(HotKeyId id) const override { return m_inner.state(id); }
        std::uint32_t lastPressTime() const override { return m_inner.lastPressTime(); }

      private:
        HotKeys& m_inner;
        Journal& m_journal;
    };

    class Monitor : public EventMonitor {
      public:
        Monitor(EventMonitor& inner, Journal& journal) : m_inner(inner), m_journal(journal) {}
        Result<void> install(Handler handler) override;
        void setWithheld(bool withheld) override { m_inner.setWithheld(withheld); }
        void setKeepsOwnStrokes(bool keeps) override { m_inner.setKeepsOwnStrokes(keeps); }

      private:
        EventMonitor& m_inner;
        Journal& m_journal;
    };

    class Settings : public SettingsStore {
      public:
        Settings(SettingsStore& inner, Journal& journal) : m_inner(inner), m_journal(journal) {}
        std::optional<std::int64_t> integer(const std::string& key) const override;
        void setInteger(const std::string& key, std::int64_t value) override;
        void setBool(const std::string& key, bool value) override;
        Result<> synchronize() override;
        std::optional<Error> takeFault() override { return m_inner.takeFault(); }

      private:
        SettingsStore& m_inner;
        Journal& m_journal;
    };

    class Login : public LoginItems {
      public:
        Login(LoginItems& inner, Journal& journal) : m_inner(inner), m_journal(journal) {}
        State state() const override { return m_inner.state(); }
        Result<> install(bool enable) override;

      private:
        LoginItems& m_inner;
        Journal& m_journal;
    };

    Session session;
    Keys hotKeys;
    Monitor monitor;
    Settings settings;
    Login loginItems;
    Services services;
};
