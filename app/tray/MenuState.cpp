// SPDX-License-Identifier: MIT
#include "app/tray/MenuState.h"

#include <algorithm>

MenuState menuState(const MenuFacts& facts) {
    MenuState state{.items = {},
                    .promptPlays = facts.hasMacro,
                    .overlayVisible = facts.overlayShown && !facts.screenLocked};
    std::transform(menuRows.begin(), menuRows.end(), state.items.begin(), [&facts](const MenuRow& row) {
        return MenuItemState{.visible = row.isVisible(facts), .enabled = row.isEnabled(facts)};
    });
    return state;
}
