// SPDX-License-Identifier: MIT
#include "contracts/EventMonitorContract.h"
#include "contracts/HotKeysContract.h"
#include "x11/X11World.h"

namespace {

std::unique_ptr<KeyboardWorld> makeWorld() { return std::make_unique<X11World>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(X11, EventMonitorContract, testing::Values(&makeWorld));
INSTANTIATE_TEST_SUITE_P(X11, HotKeysContract, testing::Values(&makeWorld));
