// SPDX-License-Identifier: MIT
#include "contracts/EventMonitorContract.h"
#include "contracts/HotKeysContract.h"
#include "evdev/EvdevWorld.h"

INSTANTIATE_TEST_SUITE_P(Evdev, EventMonitorContract, testing::Values(&makeEvdevWorld));
INSTANTIATE_TEST_SUITE_P(Evdev, HotKeysContract, testing::Values(&makeEvdevWorld));
