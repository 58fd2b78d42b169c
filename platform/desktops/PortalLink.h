// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "platform/Clock.h"
#include "platform/desktops/SessionBus.h"
#include "platform/desktops/portal/PortalMessage.h"
#include "platform/run/CompanionProcess.h"
#include "platform/run/RunCompanion.h"
#include "platform/run/RunWait.h"

/// The program keyrill-portal, by which keys are pressed where the desktop's portal lets programs do so, and
/// the line to it. It is started when it is needed, asks the desktop for permission, keeps it for a while
/// after the last run, and releases what is down however this process ends.
class PortalLink final : public RunCompanion {
  public:
    struct Options {
        /// keyrill-portal, or empty to look for it beside the running program and where it is installed.
        std::string program = {};
        /// Where the desktop's word stands by which it knows its permission again; may be empty.
        std::string tokenFile = {};
        /// How long the user may think.
        std::chrono::seconds patience{120};
        /// How long the permission is kept unused: while it is, the desktop may show a sign.
        std::chrono::seconds rest{60};
    };
    /// Whether the desktop has such a portal, for keys. Starts it if need be, and waits for it.
    static bool isThere(const SessionBus& bus);
    /// Where the word of this process's user stands, by the XDG base directory standard: in XDG_STATE_HOME
    /// (default ~/.local/state). Makes the folder.
    static std::string tokenFileOfProcess();

    /// `clock` outlives this.
    PortalLink(Options options, Clock& clock);
    ~PortalLink() override;
    PortalLink(const PortalLink&) = delete;
    PortalLink& operator=(const PortalLink&) = delete;

    /// Waits until the desktop lets keys be pressed. Fails with what can be done about it. Where the wait is
    /// halted the desktop need not be answered any more.
    Step<> open(RunWait& wait);
    /// The keys of a run are up, and it is over.
    void rest();

    /// A key of the kernel's number goes down or up, in the order of the calls. One that cannot be said makes
    /// look() fail.
    void key(std::uint16_t keycode, bool press);
    /// Another layout of KDE's is to be put in force than that one, which is put in force again however this
    /// process ends: until layoutIsHome().
    void leaveLayout(std::uint32_t layout) { say({.kind = PortalMessage::Kind::leave, .layout = layout}); }
    void layoutIsHome() { say({.kind = PortalMessage::Kind::home}); }
    /// Waits until the desktop has taken all keys; five seconds at the most.
    Result<void> synchronise();

    // RunCompanion
    int fileDescriptor() const override { return m_process.fileDescriptor(); }
    /// Fails where it has said that it has lost the permission, or has ended; never while none is needed.
    Result<void> look() override;

  private:
    Result<void> begin();
    void withdraw();
    bool say(const PortalMessage& message);
    void read();

    Options m_options;
    Clock& m_clock;
    CompanionProcess m_process;
    bool m_isNeeded = false;
    bool m_isOpened = false;
    /// The program has served a run before this one.
    bool m_isReused = false;
    bool m_hasEnded = false;
    /// How many answers to `sync` are awaited.
    int m_awaited = 0;
    /// What it has said, or what its end means.
    std::optional<PortalAnswer> m_failure;
};
