// SPDX-License-Identifier: MIT
#include "contracts/EventMonitorContract.h"
#include "contracts/HotKeysContract.h"
#include "contracts/KeyboardHoldContract.h"
#include "contracts/KeyboardLayoutContract.h"
#include "platform/x11/watch/X11KeyboardLayout.h"
#include "x11/watch/X11World.h"

namespace {

class X11LayoutWorld : public KeyboardLayoutWorld {
  public:
    KeyboardLayout& layout() override { return m_layout; }

  private:
    X11World m_world;
    x11::X11KeyboardLayout m_layout{m_world.manager()};
};

std::unique_ptr<KeyboardWorld> makeWorld() { return std::make_unique<X11World>(); }
std::unique_ptr<KeyboardLayoutWorld> makeLayoutWorld() { return std::make_unique<X11LayoutWorld>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(X11, EventMonitorContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(X11, KeyboardHoldContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(X11, HotKeysContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(X11, KeyboardLayoutContract, testing::Values(&makeLayoutWorld));
