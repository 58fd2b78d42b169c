// SPDX-License-Identifier: MIT
#include "contracts/KeyInjectorContract.h"
#include "x11/press/InjectorTest.h"

namespace {

class X11InjectorWorld : public KeyInjectorWorld {
  public:
    KeyInjector& injector() override { return m_program.injector(); }
    std::string typed(std::size_t bytes) override { return m_terminal.typed(bytes); }

  private:
    XServer m_server;
    Terminal m_terminal{m_server.display()};
    InjectorOnDisplay m_program{m_server.display()};
};

std::unique_ptr<KeyInjectorWorld> makeWorld() { return std::make_unique<X11InjectorWorld>(); }

INSTANTIATE_TEST_SUITE_P(X11, KeyInjectorContract, testing::Values(&makeWorld));

}  // namespace
