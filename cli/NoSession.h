// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyInjector.h"
#include "platform/Result.h"
#include "platform/ScriptDesktop.h"
#include "platform/linux/SignalCatcher.h"

/// What a script is run with where there is no session: it can calculate, wait, ask on the terminal and log,
/// and whatever needs the desktop fails; a question about it, which cannot, ends the run. So do SIGINT,
/// SIGTERM and SIGHUP. At most one object, and none beside a Playback.
class NoSession {
  public:
    /// `why` there is none.
    explicit NoSession(Error why) : m_why(std::move(why)) {}

    KeyInjector& injector() { return m_injector; }
    ScriptDesktop& desktop() { return m_desktop; }
    /// Whether the script asked for what is not there.
    bool wasNeeded() const { return m_wasNeeded; }
    const SignalCatcher& signals() const { return m_signals; }

  private:
    Error refusal() {
        m_wasNeeded = true;
        return m_why;
    }

    /// Nobody can tell.
    bool unknown() {
        m_isStopped = true;
        m_wasNeeded = true;
        return false;
    }
    bool isOver() const { return m_isStopped || m_signals.number() != 0; }

    class Waiting;
    class Injector : public KeyInjector {
      public:
        explicit Injector(NoSession& owner) : m_owner(owner) {}
        Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
        void startPlayback() override {}
        bool isCancelled() override { return m_owner.isOver(); }
        void stopPlayback() override { m_owner.m_isStopped = true; }

      private:
        NoSession& m_owner;
    };
    class Desktop : public ScriptDesktop {
      public:
        explicit Desktop(NoSession& owner) : m_owner(owner) {}
        Result<void> beep(int /*count*/) override { return m_owner.refusal(); }
        Result<void> setClipboard(std::string_view /*text*/) override { return m_owner.refusal(); }
        Result<std::string> clipboard() override { return m_owner.refusal(); }
        bool hasApplication(std::string_view /*name*/) override { return m_owner.unknown(); }
        Result<std::vector<std::string>> applications() override { return m_owner.refusal(); }
        bool isInFront(std::string_view /*name*/) override { return m_owner.unknown(); }
        Result<void> activate(std::string_view /*name*/) override { return m_owner.refusal(); }

      private:
        NoSession& m_owner;
    };

    Error m_why;
    bool m_wasNeeded = false;
    bool m_isStopped = false;
    SignalCatcher m_signals{nullptr, nullptr};
    Injector m_injector{*this};
    Desktop m_desktop{*this};
};
