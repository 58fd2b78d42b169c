// SPDX-License-Identifier: MIT
#include "platform/desktops/GnomeLayouts.h"

#include <algorithm>

#include "platform/Sentence.h"

namespace {

constexpr const char* schemaName = "org.gnome.desktop.input-sources";

using SchemaPointer = std::unique_ptr<GSettingsSchema, FreeBy<g_settings_schema_unref>>;

/// GSettings ends the process where it is asked for settings that it has no description of.
SchemaPointer schema() {
    GSettingsSchemaSource* const all = g_settings_schema_source_get_default();
    SchemaPointer found(all == nullptr ? nullptr : g_settings_schema_source_lookup(all, schemaName, TRUE));
    const bool hasKeys = found && g_settings_schema_has_key(found.get(), "sources") == TRUE &&
                         g_settings_schema_has_key(found.get(), "mru-sources") == TRUE;
    return hasKeys ? std::move(found) : nullptr;
}

GnomeLayouts::Sources sourcesIn(GSettings* settings, const char* key) {
    const GVariantPointer list(g_settings_get_value(settings, key));
    GnomeLayouts::Sources sources;
    if (g_variant_is_of_type(list.get(), G_VARIANT_TYPE("a(ss)")) == FALSE) return sources;
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        const char* type = nullptr;
        const char* name = nullptr;
        g_variant_get_child(list.get(), i, "(&s&s)", &type, &name);
        sources.emplace_back(type, name);
    }
    return sources;
}

}  // namespace

bool GnomeLayouts::isThere(const SessionBus& bus) { return bus.has("org.gnome.Shell"); }

bool GnomeLayouts::areKnown() { return schema() != nullptr; }

GnomeLayouts::~GnomeLayouts() {
    if (m_settings) g_signal_handlers_disconnect_by_data(m_settings.get(), this);
}

GSettings* GnomeLayouts::settings() const {
    if (m_settings) return m_settings.get();
    const SchemaPointer known = schema();
    if (!known) return nullptr;
    const BusLoop::Context::Scope scope(m_bus.loop());
    m_settings.reset(g_settings_new_full(known.get(), nullptr, nullptr));
    return m_settings.get();
}

void GnomeLayouts::observe(std::function<void()> changed) {
    if (m_settings) g_signal_handlers_disconnect_by_data(m_settings.get(), this);
    m_changed = std::move(changed);
    if (!m_changed || settings() == nullptr) return;
    g_signal_connect(m_settings.get(), "changed", G_CALLBACK(hasChanged), this);
}

void GnomeLayouts::hasChanged(GSettings* /*settings*/, const char* /*key*/, void* self) {
    static_cast<GnomeLayouts*>(self)->m_changed();
}

std::uint32_t GnomeLayouts::group() const {
    GSettings* const known = settings();
    return known == nullptr ? 0 : groupOf(sourcesIn(known, "sources"), sourcesIn(known, "mru-sources"));
}

std::uint32_t GnomeLayouts::groupOf(const Sources& sources, const Sources& lastUsed) {
    constexpr std::uint32_t groupsOfUser = 3;
    if (lastUsed.empty()) return 0;
    Sources layouts;
    for (const auto& source : sources) {
        const bool isNew = std::find(layouts.begin(), layouts.end(), source) == layouts.end();
        if (source.first == "xkb" && isNew) layouts.push_back(source);
    }
    const auto current = std::find(layouts.begin(), layouts.end(), lastUsed.front());
    if (current == layouts.end()) return 0;
    return static_cast<std::uint32_t>(current - layouts.begin()) % groupsOfUser;
}

Result<void> GnomeLayouts::setGroup(std::uint32_t /*group*/) {
    return Error{sentence("Layouts", "GNOME lets no program switch the keyboard layout."), ""};
}
