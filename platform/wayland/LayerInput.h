// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

#include "platform/Layers.h"
#include "platform/keymap/XkbPointers.h"
#include "platform/wayland/WaylandConnection.h"

namespace wayland {

/// The seat's keyboard and pointer, as far as they are a layer's. Nothing of either is asked for before or
/// after.
class LayerInput {
  public:
    /// All outlive the object.
    LayerInput(const WaylandConnection& connection, wl_surface& surface, LayerContent& content);
    ~LayerInput();
    LayerInput(const LayerInput&) = delete;
    LayerInput& operator=(const LayerInput&) = delete;

  private:
    static void seatHas(void* self, wl_seat* seat, std::uint32_t capabilities);
    void followKeyboard(bool isThere);
    void followPointer(bool isThere);
    void adopt(int file, std::uint32_t size);
    void setKeyboard(bool has);
    void keyChanges(xkb_keycode_t keycode, bool isPress);
    void pointerMoves(LayerPointer::Kind kind);

    wl_surface& m_surface;
    LayerContent& m_content;
    wl_seat* m_seat;
    wl_keyboard* m_keyboard = nullptr;
    wl_pointer* m_pointer = nullptr;
    XkbContextPointer m_context;
    XkbKeymapPointer m_keymap;
    XkbStatePointer m_state;
    bool m_hasKeyboard = false;
    int m_repeatDelay = 0;     // milliseconds
    int m_repeatInterval = 0;  // milliseconds
    bool m_isPointerHere = false;
    LayerPoint m_pointerPlace;
};

}  // namespace wayland
