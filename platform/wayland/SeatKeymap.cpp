// SPDX-License-Identifier: MIT
#include "platform/wayland/SeatKeymap.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/wayland/KeymapText.h"
#include "platform/wayland/TypingKeymap.h"

namespace wayland {

namespace {

std::string fileIn(const std::string& folder) {
    const char* const display = std::getenv("WAYLAND_DISPLAY");
    if (folder.empty() || display == nullptr) return {};
    std::string name = "keymap-" + std::string(display);
    std::replace(name.begin(), name.end(), '/', '_');
    return folder + "/keyrill/" + name;
}

std::string kept(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

/// Programs that type make keymaps in which each character has a key, and none is a modifier.
bool isOfAKeyboard(const Keymap& keymap) {
    const ModifierMasks& masks = keymap.masks();
    const xkb_mod_mask_t modifiers[] = {masks.shift, masks.control, masks.option, masks.command};
    return std::any_of(std::begin(modifiers), std::end(modifiers), [&](xkb_mod_mask_t modifier) {
        return modifier != 0 && keymap.keys().canHold(modifier);
    });
}

}  // namespace

SeatKeymap::SeatKeymap(WaylandConnection& connection, const std::string& folder,
                       std::function<xkb_layout_index_t()> group)
    : m_file(fileIn(folder)),
      m_group(std::move(group)),
      m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS)),
      m_seat(connection.seat()) {
    static constexpr wl_seat_listener listener{.capabilities = seatHas,
                                               .name = [](void*, wl_seat*, const char*) {}};
    if (m_seat != nullptr) {
        wl_seat_add_listener(m_seat, &listener, this);
        // One for the keyboard, one for its keymap.
        [[maybe_unused]] const auto hasKeyboard = connection.roundTrip();
        [[maybe_unused]] const auto hasKeymap = connection.roundTrip();
    }
    if (!m_keymap && !m_file.empty()) adopt(kept(m_file));
    if (!m_keymap) adoptDefault();
}

SeatKeymap::~SeatKeymap() {
    if (m_keyboard != nullptr) wl_keyboard_release(m_keyboard);
}

void SeatKeymap::seatHas(void* self, wl_seat* seat, std::uint32_t capabilities) {
    auto& keymap = *static_cast<SeatKeymap*>(self);
    const bool has = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
    if (has == (keymap.m_keyboard != nullptr)) return;
    if (!has) {
        wl_keyboard_release(std::exchange(keymap.m_keyboard, nullptr));
        return;
    }
    static constexpr wl_keyboard_listener listener{
        .keymap = told,
        .enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
        .leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
        .key = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
        .modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                        std::uint32_t) {},
        .repeat_info = toldRepeat};
    keymap.m_keyboard = wl_seat_get_keyboard(seat);
    wl_keyboard_add_listener(keymap.m_keyboard, &listener, self);
}

void SeatKeymap::told(void* self, wl_keyboard* /*keyboard*/, std::uint32_t format, int file,
                      std::uint32_t size) {
    const Descriptor owned(file);
    if (format != WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) return;
    std::string text = keymapText(file, size);
    auto& keymap = *static_cast<SeatKeymap*>(self);
    if (TypingKeymap::isOurs(text)) return;
    if (keymap.m_isMuted) {
        ++keymap.m_strangersKeymaps;
    } else {
        keymap.adopt(std::move(text));
    }
}

void SeatKeymap::toldRepeat(void* self, wl_keyboard* /*keyboard*/, std::int32_t rate, std::int32_t delay) {
    auto& keymap = *static_cast<SeatKeymap*>(self);
    if (keymap.m_isMuted) return;
    keymap.m_repeat = Repeat{.delay = delay, .rate = rate};
    if (keymap.m_changed) keymap.m_changed();
}

bool SeatKeymap::adopt(std::string text) {
    if (text.empty() || text == m_text) return false;
    XkbKeymapPointer compiled(xkb_keymap_new_from_string(
        m_context.get(), text.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!compiled) return false;
    auto keymap = std::make_unique<const Keymap>(std::move(compiled));
    if (!isOfAKeyboard(*keymap)) return false;
    m_keymap = std::move(keymap);
    m_characters = std::make_unique<const CharacterTable>(*m_keymap);
    m_text = std::move(text);
    m_isKept = false;
    if (m_changed) m_changed();
    return true;
}

void SeatKeymap::adoptDefault() {
    const XkbKeymapPointer compiled(
        xkb_keymap_new_from_names(m_context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS));
    char* const text =
        compiled ? xkb_keymap_get_as_string(compiled.get(), XKB_KEYMAP_FORMAT_TEXT_V1) : nullptr;
    if (text == nullptr || !adopt(text)) std::abort();
    std::free(text);
}

xkb_layout_index_t SeatKeymap::group() const {
    const xkb_layout_index_t group = m_group ? m_group() : 0;
    return group < xkb_keymap_num_layouts(m_keymap->get()) ? group : 0;
}

void SeatKeymap::ownKeyboardComes() {
    m_isMuted = true;
    keep();
}

void SeatKeymap::keep() {
    if (m_file.empty() || std::exchange(m_isKept, true)) return;
    mkdir(std::filesystem::path(m_file).parent_path().c_str(), 0700);
    const std::string draft = m_file + "." + std::to_string(getpid());
    const Descriptor file(open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
    const bool isWritten =
        file && write(file.number(), m_text.data(), m_text.size()) == static_cast<ssize_t>(m_text.size());
    if (!isWritten || rename(draft.c_str(), m_file.c_str()) != 0) unlink(draft.c_str());
}

}  // namespace wayland
