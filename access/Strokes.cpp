// SPDX-License-Identifier: MIT
#include "access/Strokes.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>

namespace keyaccess {

namespace {

constexpr std::array<std::uint16_t, 4> withheld = {KEY_POWER, KEY_SLEEP, KEY_WAKEUP, KEY_SUSPEND};

}  // namespace

bool isKeyOffered(std::uint16_t code) {
    return code >= lowestKey && code <= highestKey &&
           std::find(withheld.begin(), withheld.end(), code) == withheld.end();
}

std::optional<std::vector<Stroke>> strokesOf(GVariant* value) {
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE("a(qy)"))) return std::nullopt;
    const gsize count = g_variant_n_children(value);
    if (count == 0 || count > mostStrokes) return std::nullopt;
    std::vector<Stroke> strokes;
    for (gsize i = 0; i < count; ++i) {
        guint16 code = 0;
        guchar press = 0;
        g_variant_get_child(value, i, "(qy)", &code, &press);
        if (!isKeyOffered(code) || press > 1) return std::nullopt;
        strokes.push_back({code, press == 1});
    }
    return strokes;
}

bool DownKeys::mayFollow(const Stroke& stroke) const {
    const bool alt = m_down[KEY_LEFTALT] || m_down[KEY_RIGHTALT];
    return !(stroke.press && stroke.code == KEY_SYSRQ && alt);
}

}  // namespace keyaccess
