// SPDX-License-Identifier: MIT
#include "desktop/TrayHost.h"

#include <stdexcept>
#include <vector>

namespace {

std::vector<std::string> commandOf(TrayKind kind) {
    if (kind == TrayKind::statusNotifier) return {"xfce4-panel", "--disable-wm-check"};
    return {"trayer", "--edge", "bottom", "--align", "right", "--height", "28", "--widthtype", "request"};
}

// The panel shows its tray by a helper that is embedded at the lower edge; the helper's menus lie above.
constexpr int screenHeight = 800;
constexpr int panelHeight = 32;
constexpr int smallest = 12;

std::optional<ScreenWindow> helperWindow(const Screen& screen, bool inPanel) {
    for (const ScreenWindow& window : screen.windows()) {
        if (window.windowClass.find("wrapper-2.0") == std::string::npos) continue;
        if (window.width < smallest || window.height < smallest) continue;
        if ((window.y >= screenHeight - panelHeight) == inPanel) return window;
    }
    return std::nullopt;
}

}  // namespace

TrayHost::TrayHost(TrayKind kind, const Child::Options& options, const Screen& screen)
    : m_kind(kind),
      m_screen(screen),
      m_program(std::make_unique<Child>(commandOf(kind), options)),
      m_log(options.outputFile) {
    if (!eventually([this] { return isReady(); }, std::chrono::seconds(20)))
        throw std::runtime_error("no tray: " + contentOf(m_log));
}

// The panel's helper takes part in both kinds of tray, so that the one tells of the other.
bool TrayHost::isReady() const { return m_screen.isOwned("_NET_SYSTEM_TRAY_S0"); }

std::optional<ScreenWindow> TrayHost::icon() const {
    if (m_kind == TrayKind::docking) return m_screen.find("keyrill", "keyrill");
    return helperWindow(m_screen, true);
}

std::optional<ScreenWindow> TrayHost::ownMenu() const { return helperWindow(m_screen, false); }

std::string TrayHost::panelSettings(bool isDark) {
    const std::string dark = isDark ? "true" : "false";
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value=")" +
           dark + R"("/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=10;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="1"/>
      <property name="size" type="uint" value="30"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";
}
