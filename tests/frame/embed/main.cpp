// SPDX-License-Identifier: MIT
#include <cstdio>

#include "core/KeyCode.h"
#include "core/Macro.h"

int main() {
    Macro macro;
    macro.addAction(createKeyCode(0, "a", 'a'));
    std::fputs(macro.script().c_str(), stdout);
}
