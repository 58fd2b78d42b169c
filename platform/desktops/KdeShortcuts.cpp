// SPDX-License-Identifier: MIT
#include "platform/desktops/KdeShortcuts.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>

#include "platform/Sentence.h"
#include "platform/desktops/portal/KdeLayoutNames.h"

namespace {

constexpr const char* service = "org.kde.kglobalaccel";
constexpr const char* object = "/kglobalaccel";
constexpr const char* face = "org.kde.KGlobalAccel";
constexpr const char* componentFace = "org.kde.kglobalaccel.Component";
constexpr const char* componentObject = "/component/example_orlen_Keyrill";

/// How the desktop calls us.
constexpr const char* component = "example.orlen.Keyrill";
constexpr const char* componentName = "Keyrill";

/// The combination counts from now on, whatever the user's file of combinations says.
constexpr std::uint32_t presentAndNotFromFile = 2 | 4;
/// Keys that follow each other.
constexpr std::size_t keysInRow = 4;

SessionBus::Method method(const char* member) { return {service, object, face, member}; }

std::string idOf(std::uint8_t keycode, std::uint16_t modifiers) {
    std::ostringstream text;
    text << unsigned(keycode) << "-" << modifiers;
    return text.str();
}

GVariant* rowOf(std::int32_t key) {
    const std::array<std::int32_t, keysInRow> keys{key, 0, 0, 0};
    GVariant* const list =
        g_variant_new_fixed_array(G_VARIANT_TYPE_INT32, keys.data(), keys.size(), sizeof(std::int32_t));
    return g_variant_new_tuple(&list, 1);
}

/// As KGlobalAccel's functions want it: component, action, and both as the user sees them.
GVariant* actionOf(const std::string& id, const std::string& name) {
    const std::array<const char*, 4> words{component, id.c_str(), componentName, name.c_str()};
    return g_variant_new_strv(words.data(), words.size());
}

/// The first key of each row of an answer.
std::vector<std::int32_t> keysOf(GVariant* answer) {
    std::vector<std::int32_t> keys;
    const GVariantPointer rows(g_variant_get_child_value(answer, 0));
    for (gsize i = 0; i < g_variant_n_children(rows.get()); ++i) {
        const GVariantPointer row(g_variant_get_child_value(rows.get(), i));
        const GVariantPointer list(g_variant_get_child_value(row.get(), 0));
        gsize count = 0;
        const auto* const numbers = static_cast<const std::int32_t*>(
            g_variant_get_fixed_array(list.get(), &count, sizeof(std::int32_t)));
        if (count > 0) keys.push_back(*numbers);
    }
    return keys;
}

std::string noName() { return sentence("HotKeys", "KDE has no name for this key"); }

/// Who but us has the key, as the end of a sentence; empty if nobody does. Each owner: action, its name,
/// component, its name, context, its name, keys, default keys.
std::optional<std::string> ownerOf(std::int32_t key, const SessionBus& bus) {
    const auto answer =
        bus.ask(method("getGlobalShortcutsByKey"), g_variant_new("(i)", key), "(a(ssssssaiai))");
    if (!answer) return sentence("HotKeys", "KDE uses it for something else");
    const GVariantPointer owners(g_variant_get_child_value(answer.value().get(), 0));
    for (gsize i = 0; i < g_variant_n_children(owners.get()); ++i) {
        const GVariantPointer owner(g_variant_get_child_value(owners.get(), i));
        const char* action = nullptr;
        const char* program = nullptr;
        const char* programName = nullptr;
        g_variant_get_child(owner.get(), 1, "&s", &action);
        g_variant_get_child(owner.get(), 2, "&s", &program);
        g_variant_get_child(owner.get(), 3, "&s", &programName);
        if (program == std::string_view(component)) continue;
        return sentence("HotKeys", "%1 has it for “%2”").arg(programName).arg(action);
    }
    return std::nullopt;
}

}  // namespace

bool KdeShortcuts::isThere(const SessionBus& bus) { return bus.has(service); }

std::optional<std::string> KdeShortcuts::obstacleTo(const Combination& combination, const SessionBus& bus) {
    if (combination.keys.empty()) return noName();
    for (const std::int32_t key : combination.keys) {
        if (auto owner = ownerOf(key, bus)) return owner;
    }
    return std::nullopt;
}

KdeShortcuts::KdeShortcuts(SessionBus& bus, Describes describes)
    : m_bus(bus), m_describes(std::move(describes)) {
    listen();
    sweep();
}

KdeShortcuts::~KdeShortcuts() {
    for (const auto& [place, combination] : m_bound) {
        GVariant* const action = actionOf(idOf(place.first, place.second), combination.name);
        // A desktop that has gone has none of them any more.
        [[maybe_unused]] const auto freed =
            m_bus.ask(method("setInactive"), g_variant_new_tuple(&action, 1), nullptr);
    }
}

void KdeShortcuts::listen() {
    m_bus.hear(service, componentObject, componentFace, "globalShortcutPressed",
               [this](const char*, GVariant* parameters) { heard(parameters, Event::Kind::press); });
    m_bus.hear(service, componentObject, componentFace, "globalShortcutReleased",
               [this](const char*, GVariant* parameters) { heard(parameters, Event::Kind::release); });
    m_bus.hearOwner(service, [this](bool /*wasThere*/, bool isThere) {
        if (isThere) forget();
    });
    m_bus.hear(kdelayoutnames::service, kdelayoutnames::object, kdelayoutnames::face, "layoutChanged",
               [this](const char*, GVariant*) { m_events.push_back({.kind = Event::Kind::layout}); });
    m_bus.whenReplaced([this] { forget(); });
}

void KdeShortcuts::sweep() const {
    const auto names = m_bus.ask({service, componentObject, componentFace, "shortcutNames"}, nullptr, "(as)");
    // The first time there is no such component.
    if (!names) return;
    const GVariantPointer list(g_variant_get_child_value(names.value().get(), 0));
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        const GVariantPointer name(g_variant_get_child_value(list.get(), i));
        [[maybe_unused]] const auto gone =
            m_bus.ask(method("unregister"),
                      g_variant_new("(ss)", component, g_variant_get_string(name.get(), nullptr)), "(b)");
    }
}

std::optional<std::string> KdeShortcuts::grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) {
    const Place place{grab.keycode, grab.modifiers};
    if (m_bound.contains(place)) return std::nullopt;
    const Combination combination = m_describes(grab);
    if (combination.keys.empty()) return noName();
    const auto bound = bind(place, combination);
    if (!bound) return sentence("HotKeys", "KDE says: %1").arg(bound.error().message);
    const auto lost = std::find_if(combination.keys.begin(), combination.keys.end(), [&](std::int32_t key) {
        return std::find(bound.value().begin(), bound.value().end(), key) == bound.value().end();
    });
    if (lost != combination.keys.end()) {
        unbind(place);
        return ownerOf(*lost, m_bus).value_or(sentence("HotKeys", "KDE does not give it"));
    }
    m_bound[place] = combination;
    return std::nullopt;
}

Result<std::vector<std::int32_t>> KdeShortcuts::bind(const Place& place,
                                                     const Combination& combination) const {
    const GVariantPointer action(
        g_variant_ref_sink(actionOf(idOf(place.first, place.second), combination.name)));
    const auto registered = m_bus.ask(method("doRegister"), g_variant_new("(@as)", action.get()), nullptr);
    if (!registered) return registered.error();
    GVariantBuilder rows;
    g_variant_builder_init(&rows, G_VARIANT_TYPE("a(ai)"));
    for (const std::int32_t key : combination.keys) g_variant_builder_add_value(&rows, rowOf(key));
    const auto answer =
        m_bus.ask(method("setShortcutKeys"),
                  g_variant_new("(@asa(ai)u)", action.get(), &rows, presentAndNotFromFile), "(a(ai))");
    if (!answer) return answer.error();
    return keysOf(answer.value().get());
}

void KdeShortcuts::release(const KeyGrab& grab) {
    const Place place{grab.keycode, grab.modifiers};
    if (m_bound.erase(place) != 0) unbind(place);
}

/// One that the desktop has forgotten is no loss.
void KdeShortcuts::unbind(const Place& place) const {
    [[maybe_unused]] const auto gone =
        m_bus.ask(method("unregister"),
                  g_variant_new("(ss)", component, idOf(place.first, place.second).c_str()), "(b)");
}

std::optional<HotKeyBinder::Event> KdeShortcuts::nextEvent() {
    m_bus.update();
    if (m_events.empty()) return std::nullopt;
    const Event event = m_events.front();
    m_events.pop_front();
    return event;
}

void KdeShortcuts::heard(GVariant* parameters, Event::Kind kind) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(ssx)")) == FALSE) return;
    const char* action = nullptr;
    g_variant_get(parameters, "(&s&sx)", nullptr, &action, nullptr);
    for (const auto& [place, combination] : m_bound) {
        if (idOf(place.first, place.second) == action) {
            m_events.push_back({kind, place.first, place.second});
        }
    }
}

/// Another one in the place of one that has ended has to be told all again.
void KdeShortcuts::forget() {
    m_bound.clear();
    m_events.push_back({.kind = Event::Kind::reload});
}
