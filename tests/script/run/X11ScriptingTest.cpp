// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "contracts/ScriptingServiceContract.h"
#include "display/Hands.h"
#include "platform/Modifiers.h"
#include "platform/linux/SteadyClock.h"
#include "platform/script/run/ScriptRunner.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/Keys.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

std::unique_ptr<x11::X11EventManager> openManager(const Clock& clock, const std::string& display) {
    auto manager = x11::X11EventManager::open(clock, display);
    if (!manager) throw std::runtime_error(manager.error().message);
    return std::move(manager).value();
}

/// The runner on a private server, a terminal in front.
class X11ScriptingWorld : public ScriptingWorld {
  public:
    X11ScriptingWorld() {
        m_manager->request({.id = 2,
                            .name = "stop",
                            .keyCode = 1,
                            .modifiers = modifier::control | modifier::command,
                            .cancelsPlayback = true});
    }

    ScriptingService& scripting() override { return m_runner; }

    /// A letter of another program's comes behind all that came before.
    std::string typed() override {
        m_hands.tap(xkey::z);
        m_hands.finish();
        if (!eventually([&] { return m_terminal.typed().find('z') != std::string::npos; })) {
            throw std::runtime_error("the terminal gets nothing");
        }
        const std::string text = m_terminal.typed();
        return text.substr(0, text.find('z'));
    }

    void userAsksToStop() override {
        m_hands.stroke({xkey::control, xkey::super, xkey::s});
        m_hands.finish();
        if (!eventually([&] { return m_runner.isCancelled(); })) {
            throw std::runtime_error("the wish to stop does not arrive");
        }
    }

  private:
    XServer m_server;
    TemporaryFolder m_runtimeFolder;
    Terminal m_terminal{m_server.display()};
    Hands m_hands{m_server.display()};
    SteadyClock m_clock;
    std::unique_ptr<x11::X11EventManager> m_manager = openManager(m_clock, m_server.display());
    x11::X11KeyInjector m_injector{
        m_manager->runWatch(),
        m_clock,
        {.display = m_server.display(), .guard = KEYRILL_GUARD, .runtimeFolder = m_runtimeFolder.path()}};
    script::SilentDesktop m_desktop;
    script::ScriptRunner m_runner{m_injector, m_desktop};
};

std::unique_ptr<ScriptingWorld> makeWorld() { return std::make_unique<X11ScriptingWorld>(); }

INSTANTIATE_TEST_SUITE_P(X11, ScriptingServiceContract, testing::Values(&makeWorld));

}  // namespace
