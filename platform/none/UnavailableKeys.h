// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/EventMonitor.h"
#include "platform/HotKeys.h"
#include "platform/KeyInjector.h"
#include "platform/KeyboardLayout.h"
#include "platform/ScriptingService.h"

/// What has to do with keys, in a session that shows and takes none: everything answers with the error that
/// says why. It is there so that the program can say it to the user.
struct UnavailableKeys {
    explicit UnavailableKeys(const Error& why)
        : eventMonitor(why), hotKeys(why), keyboardLayout(why), keyInjector(why) {}

    class Monitor : public EventMonitor {
      public:
        explicit Monitor(Error why) : m_why(std::move(why)) {}
        Result<void> install(Handler /*handler*/) override { return m_why; }
        void setWithheld(bool /*withheld*/) override {}
        void setKeepsOwnStrokes(bool /*keeps*/) override {}

      private:
        Error m_why;
    };

    class Combinations : public HotKeys {
      public:
        explicit Combinations(Error why) : m_why(std::move(why)) {}
        void install(Handler /*pressed*/, Handler /*released*/) override {}
        void observe(Observer observer) override { m_observer = std::move(observer); }
        void request(const HotKeyRequest& request) override {
            if (m_observer) m_observer(request.id, state(request.id));
        }
        void withdraw(HotKeyId /*id*/) override {}
        HotKeyState state(HotKeyId /*id*/) const override { return {HotKeyStatus::refused, m_why}; }
        std::uint32_t lastPressTime() const override { return 0; }

      private:
        Error m_why;
        Observer m_observer;
    };

    class Layout : public KeyboardLayout {
      public:
        explicit Layout(Error why) : m_why(std::move(why)) {}
        std::string keyName(std::uint32_t keyCode) const override { return std::to_string(keyCode); }
        Result<std::string> character(std::uint32_t /*keyCode*/, bool /*shift*/,
                                      bool /*option*/) const override {
            return m_why;
        }

      private:
        Error m_why;
    };

    class Injector : public KeyInjector {
      public:
        explicit Injector(Error why) : m_why(std::move(why)) {}
        Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override {
            return m_why;
        }
        void startPlayback() override {}
        bool isCancelled() override { return false; }

      private:
        Error m_why;
    };

    Monitor eventMonitor;
    Combinations hotKeys;
    Layout keyboardLayout;
    Injector keyInjector;
};
