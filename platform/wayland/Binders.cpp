// SPDX-License-Identifier: MIT
#include "platform/wayland/Binders.h"

#include "platform/desktops/GnomeShortcuts.h"
#include "platform/desktops/KdeShortcuts.h"
#include "platform/desktops/PortalShortcuts.h"
#include "platform/desktops/SwayBindings.h"
#include "platform/keymap/TriggerNames.h"
#include "platform/wayland/DesktopServices.h"
#include "platform/wayland/KdeKeys.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

namespace {

/// Whether a key types a symbol of that name in any layout, with or without Shift.
bool types(const Keymap& keymap, std::uint8_t keycode, const std::string& name) {
    const xkb_keysym_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    if (symbol == XKB_KEY_NoSymbol) return false;
    const auto layouts = xkb_keymap_num_layouts(keymap.get());
    for (xkb_layout_index_t layout = 0; layout < layouts; ++layout) {
        for (const xkb_mod_mask_t modifiers : {xkb_mod_mask_t(0), keymap.masks().shift}) {
            const xkb_keysym_t typed = keymap.symbol(keycode, modifiers, layout);
            if (xkb_keysym_to_lower(typed) == xkb_keysym_to_lower(symbol)) return true;
        }
    }
    return false;
}

SwayUsersBindings::Types typesOf(const SeatKeymap& seat) {
    return [&seat](std::uint8_t keycode, const std::string& symbol) {
        return types(seat.keymap(), keycode, symbol);
    };
}

std::optional<KeyGrab> meaningOf(const Keymap& keymap, const std::string& words) {
    const auto combination = meaningOfTrigger(keymap, words);
    if (!combination) return std::nullopt;
    return KeyGrab{.keycode = combination->keycode,
                   .modifiers = static_cast<std::uint16_t>(combination->modifiers)};
}

/// In the layout in force; where that types no Latin letters GNOME looks for those of another one as well.
std::vector<std::string> acceleratorsOf(const SeatKeymap& seat, const KeyGrab& grab) {
    constexpr std::uint8_t keyAboveTab = 49;
    const Keymap& keymap = seat.keymap();
    const auto named = [&](xkb_layout_index_t layout) {
        return gtkAccelerator(keymap, layout, grab.keycode, grab.modifiers);
    };
    std::vector<std::string> names{named(seat.group())};
    if (names.front().empty()) return {};
    const auto isLatin = [&](xkb_layout_index_t layout) {
        constexpr xkb_keysym_t lastOfLatin1 = 0xff;
        constexpr xkb_keysym_t firstFunctionKey = 0xfd00;
        const xkb_keysym_t symbol = keymap.symbol(grab.keycode, 0, layout);
        return symbol <= lastOfLatin1 || (symbol >= firstFunctionKey && symbol <= XKB_KEY_Delete);
    };
    for (xkb_layout_index_t layout = 0;
         !isLatin(seat.group()) && layout < xkb_keymap_num_layouts(keymap.get()); ++layout) {
        if (isLatin(layout)) names.push_back(named(layout));
    }
    if (grab.keycode == keyAboveTab) {
        const std::string& name = names.front();
        names.push_back(name.substr(0, name.rfind('>') + 1) + "Above_Tab");
    }
    return names;
}

std::chrono::milliseconds repeatDelayOf(const SeatKeymap& seat) {
    constexpr std::chrono::milliseconds usual{500};
    const auto& repeat = seat.repeat();
    return repeat && repeat->rate > 0 ? std::chrono::milliseconds(repeat->delay) : usual;
}

/// What starts the program that runs, in the words of a shell; its name where that is not known.
std::string commandOfProcess() {
    const GText path(g_file_read_link("/proc/self/exe", nullptr));
    const GText words(g_shell_quote(path ? path.get() : "keyrill"));
    return words.get();
}

std::unique_ptr<HotKeyBinder> openGnomeBinder(SessionBus& bus, const SeatKeymap& seat) {
    return std::make_unique<GnomeShortcuts>(
        bus, GnomeShortcuts::Words{
                 .acceleratorsOf = [&seat](const KeyGrab& grab) { return acceleratorsOf(seat, grab); },
                 .program = commandOfProcess(),
                 .repeatDelay = [&seat] { return repeatDelayOf(seat); }});
}

/// Takes none.
class Lookup final : public KeyGrabber {
  public:
    /// Why a combination could not be had, as grab() says it.
    using Obstacle = std::function<std::optional<std::string>(const KeyGrab& grab)>;

    /// Null for `obstacle` where the desktop does not tell.
    explicit Lookup(Obstacle obstacle) : m_obstacle(std::move(obstacle)) {}

    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) override {
        return m_obstacle ? m_obstacle(grab) : std::nullopt;
    }
    /// What is not told stays open.
    bool isDecidedByUser() const override { return !m_obstacle; }
    void release(const KeyGrab& /*grab*/) override {}

  private:
    Obstacle m_obstacle;
};

}  // namespace

std::unique_ptr<HotKeyBinder> openBinder(const DesktopServices& desktop, const SeatKeymap& seat) {
    if (desktop.isKde()) {
        return std::make_unique<KdeShortcuts>(
            *desktop.bus(), [&seat](const KeyGrab& grab) { return kdeCombination(seat, grab); });
    }
    if (desktop.hasShortcutsPortal()) {
        return std::make_unique<PortalShortcuts>(
            *desktop.bus(),
            PortalShortcuts::Words{
                .triggerOf =
                    [&seat](const KeyGrab& grab) {
                        return portalTrigger(seat.keymap(), grab.keycode, grab.modifiers);
                    },
                .meaningOf = [&seat](const std::string& words) { return meaningOf(seat.keymap(), words); }});
    }
    if (desktop.hasGnomeBindings()) return openGnomeBinder(*desktop.bus(), seat);
    if (!desktop.isSway()) return nullptr;
    auto bindings = SwayBindings::open(typesOf(seat));
    return bindings ? std::move(bindings).value() : nullptr;
}

std::unique_ptr<KeyGrabber> openLookup(const DesktopServices& desktop, const SeatKeymap& seat) {
    if (desktop.isKde()) {
        return std::make_unique<Lookup>([&seat, &bus = *desktop.bus()](const KeyGrab& grab) {
            return KdeShortcuts::obstacleTo(kdeCombination(seat, grab), bus);
        });
    }
    if (!desktop.isSway()) return nullptr;
    auto sway = SwayConnection::open();
    SwayUsersBindings users(typesOf(seat));
    if (!sway || !users.read(sway.value())) return std::make_unique<Lookup>(nullptr);
    return std::make_unique<Lookup>(
        [users = std::move(users)](const KeyGrab& grab) { return users.obstacleTo(grab); });
}

}  // namespace wayland
