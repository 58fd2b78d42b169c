// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "compositor/Compositor.h"
#include "compositor/Hands.h"
#include "compositor/ScreenPicture.h"
#include "support/Child.h"
#include "support/Keys.h"
#include "wayland/Target.h"

/// That of a person.
class Mouse {
  public:
    virtual ~Mouse() = default;

    /// Clicks with the main button at that place on the screen.
    virtual void click(unsigned x, unsigned y) = 0;

  protected:
    Mouse() = default;
    Mouse(const Mouse&) = default;
    Mouse& operator=(const Mouse&) = default;
};

/// keyrill itself in a Wayland session of the test's own, with the preset combinations, and the hands of its
/// user.
class ProgramSession {
  public:
    virtual ~ProgramSession() = default;

    /// Starts the program with a macro of these lines.
    virtual void launch(const std::string& lines) = 0;
    /// The same where there is no tray, and waits until it is up: it has its combinations, too.
    void start(const std::string& lines) {
        launch(lines);
        // Without a tray a small window appears then.
        if (!eventually([this] { return shows("Keyrill"); }, std::chrono::seconds(60)))
            throw std::runtime_error("the program does not start: " + log());
    }
    virtual const Compositor& compositor() const = 0;
    virtual Hands& hands() = 0;
    virtual Child& program() = 0;
    /// What the program says, on standard output and error.
    std::string log() const { return outputIn("output"); }
    /// Another program of the user's, with the environment that keyrill has; it writes to a file of that
    /// name.
    virtual std::unique_ptr<Child> run(const std::vector<std::string>& command,
                                       const std::string& output) const = 0;
    /// Writes a file of his; its path.
    virtual std::string put(const std::string& name, const std::string& content) const = 0;
    /// The compositor's, an absolute path.
    virtual std::string socket() const = 0;
    virtual std::string outputIn(const std::string& file) const = 0;
    /// What `keyrill --action=` of that name says to it; empty if it is done.
    std::string ask(const std::string& action) const {
        return outputOfUsers({KEYRILL_PRODUCT, "--action=" + action});
    }
    /// What `keyrill --check` says.
    std::string check() const { return outputOfUsers({KEYRILL_PRODUCT, "--check"}); }
    /// What a command says that is run to its end as run() does.
    std::string outputOfUsers(const std::vector<std::string>& command) const {
        const std::string file = "answer" + std::to_string(++m_answers);
        run(command, file)->wait();
        return outputIn(file);
    }
    /// Waits until the program asks nothing any more, and takes its combinations again.
    void awaitRest() const {
        const std::string atRest = "keyrill: Nothing is being recorded or played.\n";
        if (!eventually([&] { return ask("stop") == atRest; }, std::chrono::seconds(20)))
            throw std::runtime_error("the program comes to no rest: " + ask("stop"));
    }
    /// Another program, which has the focus when this returns.
    virtual std::unique_ptr<Target> openTarget(Target::Kind kind) const = 0;
    /// The first screen.
    virtual ScreenPicture picture() const = 0;
    /// The window that has the focus.
    virtual void makeFullScreen() const = 0;
    /// Goes with the session at the latest.
    virtual std::unique_ptr<Mouse> plugMouse() = 0;
    /// As for somebody who starts the program for the first time. Before start().
    virtual void forgetSettings() const = 0;
    /// Whether keys go to a layer, to no window.
    virtual bool hasLayerKeys() const = 0;

    /// Before start(); there is none otherwise.
    void setSystemBus(const std::string& address) { m_systemBus = address; }

    bool shows(const std::string& title) const { return compositor().shows(title); }
    void strokeHotKey(std::uint8_t key) { hands().stroke({xkey::control, xkey::super, key}); }

  protected:
    ProgramSession() = default;
    ProgramSession(const ProgramSession&) = default;
    ProgramSession& operator=(const ProgramSession&) = default;

    const std::string& systemBus() const { return m_systemBus; }

  private:
    mutable int m_answers = 0;
    std::string m_systemBus = "unix:path=/nonexistent/system-bus";
};

/// A kind of session, and who is typed into there.
struct Place {
    const char* name;
    std::unique_ptr<ProgramSession> (*open)();
    Target::Kind target;
    /// How long keys are down before they repeat.
    std::chrono::milliseconds repeatDelay{600};

    /// As often as a key is typed that is held for so long, by the compositor's rule.
    std::size_t strokesOf(std::chrono::steady_clock::duration held) const {
        constexpr std::chrono::milliseconds interval{40};
        return held < repeatDelay ? 1 : 2 + static_cast<std::size_t>((held - repeatDelay) / interval);
    }
};

/// For GoogleTest.
inline std::ostream& operator<<(std::ostream& stream, const Place& place) { return stream << place.name; }
