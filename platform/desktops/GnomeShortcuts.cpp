// SPDX-License-Identifier: MIT
#include "platform/desktops/GnomeShortcuts.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/desktops/GnomeLayouts.h"

namespace {

constexpr const char* theBus = "org.freedesktop.DBus";
constexpr const char* theBusObject = "/org/freedesktop/DBus";
constexpr guint32 withoutWaiting = 4;

/// What GNOME takes to start a program, and more.
constexpr std::chrono::milliseconds timeToStart{200};
/// Between the repeats of a held key it may take longer, as each starts one.
constexpr std::chrono::milliseconds betweenRepeats{400};

std::string quoted(const std::string& argument) {
    const GText text(g_shell_quote(argument.c_str()));
    return text.get();
}

void end(GSource* source) {
    if (source != nullptr) g_source_destroy(source);
}

}  // namespace

/// Where its display has gone, as when the user logs out, the toolkit ends the process by exit(3), which
/// destroys nothing but what is static.
class GnomeShortcuts::AtExit {
  public:
    AtExit() = default;
    ~AtExit() {
        if (m_shortcuts != nullptr) m_shortcuts->takeOut();
    }
    AtExit(const AtExit&) = delete;
    AtExit& operator=(const AtExit&) = delete;

    static void watch(GnomeShortcuts* shortcuts) {
        static AtExit atExit;
        atExit.m_shortcuts = shortcuts;
    }

  private:
    GnomeShortcuts* m_shortcuts = nullptr;
};

bool GnomeShortcuts::isThere(const SessionBus& bus) {
    return GnomeLayouts::isThere(bus) && GnomeKeyBindings::areKnown(bus);
}

GnomeShortcuts::GnomeShortcuts(SessionBus& bus, Words words)
    : m_bus(bus), m_words(std::move(words)), m_settings(bus) {
    listen();
    m_bus.whenReplaced([this] {
        listen();
        m_events.push_back({.kind = Event::Kind::reload});
    });
    m_settings.write({});
    m_settings.observe([this] { settingsChanged(); });
    AtExit::watch(this);
}

GnomeShortcuts::~GnomeShortcuts() {
    AtExit::watch(nullptr);
    end(m_later.get());
    for (const auto& [name, held] : m_held) end(held.end.get());
    takeOut();
}

void GnomeShortcuts::takeOut() {
    m_settings.observe({});
    m_settings.write({});
    GnomeKeyBindings::finish();
}

/// Where another process has the name it is that which is told.
void GnomeShortcuts::listen() {
    [[maybe_unused]] const auto served =
        m_bus.serve(object, face, member,
                    [this](const std::string& /*caller*/, const std::string& name) { pressed(name); });
    [[maybe_unused]] const auto owned = m_bus.ask({theBus, theBusObject, theBus, "RequestName"},
                                                  g_variant_new("(su)", service, withoutWaiting), "(u)");
}

std::optional<Error> GnomeShortcuts::obstacleToAll() const {
    if (m_hasConsent) return std::nullopt;
    return Error{
        sentence("HotKeys", "GNOME has hot keys only in your own settings, which Keyrill may not change."),
        sentence("HotKeys",
                 "Tick the box in Keyrill's preferences, or bind keys to commands such as \"keyrill "
                 "--action=play\" in GNOME's settings yourself.")};
}

std::optional<std::string> GnomeShortcuts::grab(const KeyGrab& grab, const HotKeyRequest& request) {
    if (const auto obstacle = obstacleToAll()) return obstacle->message;
    const std::vector<std::string> accelerators = m_words.acceleratorsOf(grab);
    if (accelerators.empty() || request.arguments.empty())
        return sentence("HotKeys", "GNOME has no name for it");
    auto refusal = m_settings.obstacleTo(request.name);
    if (!refusal) refusal = m_settings.ownerOf(accelerators);
    if (refusal) {
        m_hasRefused = true;
        return refusal;
    }
    const std::string title = "Keyrill: " + (request.title.empty() ? request.name : request.title);
    m_wishes[request.name] = {
        .grab = grab,
        .entry = {.title = title, .command = commandFor(request), .accelerator = accelerators.front()}};
    writeLater();
    return std::nullopt;
}

std::string GnomeShortcuts::commandFor(const HotKeyRequest& request) const {
    std::string command = m_words.program;
    for (const std::string& argument : request.arguments) command += " " + quoted(argument);
    return command + " " + quoted(GnomeKeyBindings::option + request.name);
}

void GnomeShortcuts::release(const KeyGrab& grab) {
    const auto count =
        std::erase_if(m_wishes, [&grab](const auto& wish) { return wish.second.grab == grab; });
    if (count > 0) writeLater();
}

/// Once all has been said: much is given free only to be asked for again at once.
void GnomeShortcuts::writeLater() {
    if (m_later) return;
    m_later.reset(g_idle_source_new());
    g_source_set_callback(m_later.get(), writeNow, this, nullptr);
    g_source_attach(m_later.get(), m_bus.loop().context().get());
}

gboolean GnomeShortcuts::writeNow(void* self) {
    auto& shortcuts = *static_cast<GnomeShortcuts*>(self);
    shortcuts.m_later.reset();
    shortcuts.write();
    return G_SOURCE_REMOVE;
}

void GnomeShortcuts::write() {
    GnomeKeyBindings::Entries entries;
    for (const auto& [name, wish] : m_wishes) entries[name] = wish.entry;
    // What it changes it tells of while it writes.
    m_settings.observe({});
    m_settings.write(entries);
    m_settings.observe([this] { settingsChanged(); });
    for (auto& [name, wish] : m_wishes) wish.isWritten = true;
}

/// The user may have taken one of ours out, or have given something free.
void GnomeShortcuts::settingsChanged() {
    const std::set<std::string> names = m_settings.names();
    for (auto wish = m_wishes.begin(); wish != m_wishes.end();) {
        const auto [name, asked] = *wish;
        if (!asked.isWritten || names.contains(name)) {
            ++wish;
            continue;
        }
        m_events.push_back({Event::Kind::answer,
                            asked.grab.keycode,
                            asked.grab.modifiers,
                            {.refusal = sentence("HotKeys", "it has been taken out of GNOME's settings")}});
        wish = m_wishes.erase(wish);
    }
    if (std::exchange(m_hasRefused, false)) m_events.push_back({.kind = Event::Kind::reload});
}

/// Each is the same key under another name.
void GnomeShortcuts::layoutChanged() {
    const bool isSame = std::all_of(m_wishes.begin(), m_wishes.end(), [this](const auto& wish) {
        const std::vector<std::string> accelerators = m_words.acceleratorsOf(wish.second.grab);
        return !accelerators.empty() && accelerators.front() == wish.second.entry.accelerator;
    });
    if (isSame) return;
    m_events.push_back({.kind = Event::Kind::reload});
    m_bus.loop().wake();
}

void GnomeShortcuts::pressed(const std::string& name) {
    const auto wish = m_wishes.find(name);
    if (wish == m_wishes.end()) return;
    const KeyGrab grab = wish->second.grab;
    const auto [held, isFirst] = m_held.emplace(name, Held{*this, name, grab, nullptr});
    awaitEnd(held->second, isFirst ? m_words.repeatDelay() + timeToStart : betweenRepeats);
    if (isFirst || held->second.grab == grab)
        m_events.push_back({Event::Kind::press, grab.keycode, grab.modifiers});
}

void GnomeShortcuts::awaitEnd(Held& held, std::chrono::milliseconds patience) {
    end(held.end.get());
    held.end.reset(g_timeout_source_new(static_cast<guint>(patience.count())));
    g_source_set_callback(held.end.get(), hasEnded, &held, nullptr);
    g_source_attach(held.end.get(), m_bus.loop().context().get());
}

gboolean GnomeShortcuts::hasEnded(void* held) {
    auto& ended = *static_cast<Held*>(held);
    GnomeShortcuts& owner = ended.owner;
    owner.m_events.push_back({Event::Kind::release, ended.grab.keycode, ended.grab.modifiers});
    owner.m_held.erase(std::string(ended.name));
    return G_SOURCE_REMOVE;
}

std::optional<HotKeyBinder::Event> GnomeShortcuts::nextEvent() {
    m_bus.update();
    if (m_events.empty()) return std::nullopt;
    const Event event = m_events.front();
    m_events.pop_front();
    return event;
}
