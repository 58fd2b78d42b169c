// SPDX-License-Identifier: MIT
#include "engine/EngineState.h"

EngineState& engineState() {
    static EngineState state;
    return state;
}
