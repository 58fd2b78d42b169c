// SPDX-License-Identifier: MIT
#include "platform/desktops/GnomeKeyBindings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/Sentence.h"
#include "platform/keymap/TriggerNames.h"

namespace {

constexpr const char* listSchema = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* entrySchema = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* listKey = "custom-keybindings";
constexpr std::string_view ourPaths =
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/keyrill-";
constexpr std::array entryKeys = {"name", "command", "binding"};

/// Where the desktop itself has key bindings.
constexpr std::array desktopSchemas = {listSchema, "org.gnome.desktop.wm.keybindings",
                                       "org.gnome.shell.keybindings", "org.gnome.mutter.keybindings",
                                       "org.gnome.mutter.wayland.keybindings"};

using SchemaPointer = std::unique_ptr<GSettingsSchema, FreeBy<g_settings_schema_unref>>;
using KeyPointer = std::unique_ptr<GSettingsSchemaKey, FreeBy<g_settings_schema_key_unref>>;

SchemaPointer schemaNamed(const char* name) {
    GSettingsSchemaSource* const all = g_settings_schema_source_get_default();
    return SchemaPointer(all == nullptr ? nullptr : g_settings_schema_source_lookup(all, name, TRUE));
}

bool hasKey(const SchemaPointer& schema, const char* key, const char* type) {
    if (!schema || g_settings_schema_has_key(schema.get(), key) == FALSE) return false;
    const KeyPointer found(g_settings_schema_get_key(schema.get(), key));
    return g_variant_type_equal(g_settings_schema_key_get_value_type(found.get()), G_VARIANT_TYPE(type)) ==
           TRUE;
}

/// Where no other place is installed settings are kept in memory, where no other program finds them.
bool areKeptInMemory(GSettings* settings) {
    GObject* backend = nullptr;
    g_object_get(settings, "backend", &backend, nullptr);
    const GObjectPointer<GObject> owned(backend);
    return std::string_view(G_OBJECT_TYPE_NAME(backend)) == "GMemorySettingsBackend";
}

/// The accelerators under a key, which are one or several.
std::vector<std::string> acceleratorsAt(GSettings* settings, const char* key) {
    const GVariantPointer value(g_settings_get_value(settings, key));
    if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING) == TRUE)
        return {g_variant_get_string(value.get(), nullptr)};
    if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING_ARRAY) == FALSE) return {};
    std::vector<std::string> texts;
    for (gsize i = 0; i < g_variant_n_children(value.get()); ++i) {
        const char* text = nullptr;
        g_variant_get_child(value.get(), i, "&s", &text);
        texts.emplace_back(text);
    }
    return texts;
}

bool haveOneInCommon(const std::vector<std::string>& some, const std::vector<std::string>& others) {
    return std::find_first_of(some.begin(), some.end(), others.begin(), others.end(), isSameAccelerator) !=
           some.end();
}

/// What the key is for, as the desktop says it; its name where it says nothing.
std::string purposeOf(const SchemaPointer& schema, const char* name) {
    const KeyPointer key(g_settings_schema_get_key(schema.get(), name));
    const char* const summary = g_settings_schema_key_get_summary(key.get());
    return summary == nullptr || *summary == '\0' ? name : summary;
}

SchemaPointer schemaOf(GSettings* settings) {
    GSettingsSchema* schema = nullptr;
    g_object_get(settings, "settings-schema", &schema, nullptr);
    return SchemaPointer(schema);
}

/// Which of these settings is for one of the combinations; empty if none is.
std::string purposeIn(GSettings* settings, const std::vector<std::string>& accelerators) {
    const SchemaPointer schema = schemaOf(settings);
    const GTexts keys(g_settings_schema_list_keys(schema.get()));
    for (char** key = keys.get(); *key != nullptr; ++key) {
        if (std::string_view(*key) != listKey &&
            haveOneInCommon(acceleratorsAt(settings, *key), accelerators))
            return purposeOf(schema, *key);
    }
    return {};
}

}  // namespace

bool GnomeKeyBindings::areKnown(const SessionBus& bus) {
    const SchemaPointer list = schemaNamed(listSchema);
    const SchemaPointer entry = schemaNamed(entrySchema);
    const bool areDescribed = hasKey(list, listKey, "as") &&
                              std::all_of(entryKeys.begin(), entryKeys.end(),
                                          [&entry](const char* key) { return hasKey(entry, key, "s"); });
    if (!areDescribed) return false;
    // Some stores notice changes in the loop of whoever comes first in the process.
    const BusLoop::Context::Scope scope(bus.loop());
    const GObjectPointer<GSettings> settings(g_settings_new_full(list.get(), nullptr, nullptr));
    return !areKeptInMemory(settings.get());
}

GnomeKeyBindings::GnomeKeyBindings(const SessionBus& bus) : m_bus(bus), m_list(opened(listSchema, nullptr)) {
    for (const char* const schema : desktopSchemas) {
        if (auto settings = opened(schema, nullptr)) m_desktops.push_back(std::move(settings));
    }
}

GnomeKeyBindings::~GnomeKeyBindings() {
    const auto leave = [this](const GObjectPointer<GSettings>& settings) {
        g_signal_handlers_disconnect_by_data(settings.get(), this);
    };
    leave(m_list);
    for (const auto& settings : m_desktops) leave(settings);
    for (const auto& [path, settings] : m_entries) leave(settings);
}

GObjectPointer<GSettings> GnomeKeyBindings::opened(const char* schema, const char* path) {
    const SchemaPointer known = schemaNamed(schema);
    if (!known) return nullptr;
    const BusLoop::Context::Scope scope(m_bus.loop());
    GObjectPointer<GSettings> settings(g_settings_new_full(known.get(), nullptr, path));
    g_signal_connect(settings.get(), "changed", G_CALLBACK(hasChanged), this);
    return settings;
}

void GnomeKeyBindings::hasChanged(GSettings* /*settings*/, const char* /*key*/, void* self) {
    const auto& changed = static_cast<GnomeKeyBindings*>(self)->m_changed;
    if (changed) changed();
}

GSettings* GnomeKeyBindings::at(const std::string& path) {
    auto& settings = m_entries[path];
    if (!settings) settings = opened(entrySchema, path.c_str());
    return settings.get();
}

std::string GnomeKeyBindings::textAt(const std::string& path, const char* key) {
    const GText text(g_settings_get_string(at(path), key));
    return text.get();
}

/// Entries that are no paths are none of ours, and stay.
GnomeKeyBindings::Paths GnomeKeyBindings::paths() { return acceleratorsAt(m_list.get(), listKey); }

bool GnomeKeyBindings::isOurs(const std::string& path) {
    return path.starts_with(ourPaths) && path.find('/', ourPaths.size()) == path.size() - 1 &&
           textAt(path, "command").find(option) != std::string::npos;
}

std::optional<std::string> GnomeKeyBindings::obstacleTo(const std::string& name) {
    if (g_settings_is_writable(m_list.get(), listKey) == FALSE)
        return sentence("HotKeys", "GNOME's settings cannot be changed");
    const std::string path = std::string(ourPaths) + name + "/";
    const Paths all = paths();
    const bool isThere = std::find(all.begin(), all.end(), path) != all.end();
    if (isThere && !isOurs(path))
        return sentence("HotKeys", "your settings of GNOME have another entry in its place");
    return std::nullopt;
}

std::optional<std::string> GnomeKeyBindings::ownerOf(const std::vector<std::string>& accelerators) {
    for (const std::string& path : paths()) {
        const bool isPath = path.starts_with('/') && path.ends_with('/') && path.find("//") == path.npos;
        if (!isPath || isOurs(path) || !haveOneInCommon({textAt(path, "binding")}, accelerators)) continue;
        return sentence("HotKeys", "your own shortcut “%1” in GNOME's settings has it")
            .arg(textAt(path, "name"));
    }
    for (const auto& settings : m_desktops) {
        const std::string purpose = purposeIn(settings.get(), accelerators);
        if (!purpose.empty()) return sentence("HotKeys", "GNOME has it for “%1”").arg(purpose);
    }
    return std::nullopt;
}

std::set<std::string> GnomeKeyBindings::names() {
    std::set<std::string> names;
    for (const std::string& path : paths()) {
        if (isOurs(path)) names.insert(path.substr(ourPaths.size(), path.size() - ourPaths.size() - 1));
    }
    return names;
}

/// What is in the list is whole at any time: an entry comes before its place in the list, and goes after it.
void GnomeKeyBindings::write(const Entries& entries) {
    const Paths before = paths();
    Paths after = before;
    std::erase_if(after, [this](const std::string& path) { return isOurs(path); });
    for (const auto& [name, entry] : entries) {
        after.push_back(std::string(ourPaths) + name + "/");
        writeEntry(after.back(), entry);
    }
    Paths gone;
    std::copy_if(before.begin(), before.end(), std::back_inserter(gone), [&after](const std::string& path) {
        return std::find(after.begin(), after.end(), path) == after.end();
    });
    if (after != before) {
        std::vector<const char*> texts;
        for (const std::string& path : after) texts.push_back(path.c_str());
        texts.push_back(nullptr);
        g_settings_set_strv(m_list.get(), listKey, texts.data());
    }
    for (const std::string& path : gone) removeEntry(path);
}

void GnomeKeyBindings::writeEntry(const std::string& path, const Entry& entry) {
    const std::array values = {&entry.title, &entry.command, &entry.accelerator};
    for (std::size_t i = 0; i < entryKeys.size(); ++i) {
        if (textAt(path, entryKeys.at(i)) != *values.at(i))
            g_settings_set_string(at(path), entryKeys.at(i), values.at(i)->c_str());
    }
}

void GnomeKeyBindings::removeEntry(const std::string& path) {
    for (const char* const key : entryKeys) g_settings_reset(at(path), key);
}
