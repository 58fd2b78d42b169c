// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "display/CoreClient.h"
#include "display/KeyboardProbe.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/Terminal.h"
#include "support/XServer.h"

/// The injector on a display, with the event manager as it is in the program.
class InjectorOnDisplay {
  public:
    explicit InjectorOnDisplay(const std::string& display);

    x11::X11KeyInjector& injector() { return *m_injector; }
    x11::X11EventManager& manager() { return *m_manager; }
    const TemporaryFolder& runtimeFolder() const { return m_folder; }
    Clock& clock() { return m_clock; }

    /// A new run; an error fails the test by an exception.
    std::unique_ptr<InjectionSession> run(const InjectionPlan& plan = {});
    /// The program's end, and a new start.
    void end() { m_injector.reset(); }
    void begin(std::chrono::milliseconds patience = x11::X11KeyInjector::Options().patience);

  private:
    std::string m_display;
    TemporaryFolder m_folder;
    SteadyClock m_clock;
    std::unique_ptr<x11::X11EventManager> m_manager;
    std::unique_ptr<x11::X11KeyInjector> m_injector;
};

/// A private X server with the injector under test.
class InjectorTest : public testing::Test {
  protected:
    InjectorTest() : m_injector(m_server.display()), m_probe(m_server.display()) {}

    const std::string& display() const { return m_server.display(); }
    const XServer& server() const { return m_server; }
    InjectorOnDisplay& program() { return m_injector; }
    std::unique_ptr<InjectionSession> run(const InjectionPlan& plan = {}) { return m_injector.run(plan); }
    const KeyboardProbe& probe() const { return m_probe; }
    /// A command at this display; its output.
    std::string command(const std::vector<std::string>& words) const;

  private:
    XServer m_server;
    InjectorOnDisplay m_injector;
    KeyboardProbe m_probe;
};

/// "going", "cancelled", or the error's message.
std::string wordsOf(const Step<>& step);

/// The first `count` ideographs of Unicode, none of them twice; no layout has them.
std::string ideographs(int count);

/// "press 38 0x4", "release 38 0x4": the key events of an application, with the state that they carry.
std::vector<std::string> wordsOf(const std::vector<CoreClient::KeyEvent>& events);
