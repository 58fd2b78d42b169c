// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "compositor/GnomeShell.h"
#include "compositor/KWin.h"
#include "compositor/Phoc.h"
#include "compositor/Sway.h"

/// A rectangle of a screen's own pixels.
struct ScreenArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const ScreenArea&, const ScreenArea&) = default;
};
std::ostream& operator<<(std::ostream& stream, const ScreenArea& area);

/// What is to be seen on one of sway's screens or on phoc's, as grim takes it, or on that of GNOME or KDE, as
/// their shell or KWin gives it.
class ScreenPicture {
  public:
    using Colour = std::array<std::uint8_t, 3>;

    explicit ScreenPicture(const Sway& sway, const std::string& screen = "HEADLESS-1");
    explicit ScreenPicture(const Phoc& phoc);
    explicit ScreenPicture(const GnomeShell& shell);
    explicit ScreenPicture(const KWin& kwin);

    int width() const { return m_width; }
    int height() const { return m_height; }
    const Colour& at(int x, int y) const;

    /// The smallest area outside of which both are the same; empty where they do not differ.
    std::optional<ScreenArea> differsFrom(const ScreenPicture& other) const;

    /// Writes it for whoever runs the tests, into the folder that KEYRILL_PICTURES names, if any; PPM.
    void keep(const std::string& name) const;

  private:
    void take(const std::string& screen, const std::map<std::string, std::string>& environment);
    /// Takes the content of a PPM file.
    void read(const std::string& content);

    int m_width = 0;
    int m_height = 0;
    std::vector<Colour> m_pixels;
};
