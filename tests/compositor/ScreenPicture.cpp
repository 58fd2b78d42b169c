// SPDX-License-Identifier: MIT
#include "compositor/ScreenPicture.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <stdexcept>

std::ostream& operator<<(std::ostream& stream, const ScreenArea& area) {
    return stream << area.width << "x" << area.height << " at " << area.x << "," << area.y;
}

ScreenPicture::ScreenPicture(const Sway& sway, const std::string& screen) {
    take(screen, sway.environment());
}

ScreenPicture::ScreenPicture(const Phoc& phoc) { take("HEADLESS-1", phoc.environment()); }

void ScreenPicture::take(const std::string& screen, const std::map<std::string, std::string>& environment) {
    const TemporaryFolder folder;
    outputOf({"grim", "-t", "ppm", "-o", screen, folder.file("picture")}, environment);
    read(contentOf(folder.file("picture")));
}

ScreenPicture::ScreenPicture(const GnomeShell& shell) {
    const TemporaryFolder folder;
    outputOf({"convert", shell.picture("screen.png"), "-depth", "8", "ppm:" + folder.file("picture")});
    read(contentOf(folder.file("picture")));
}

void ScreenPicture::read(const std::string& content) {
    std::istringstream stream(content);
    std::string kind;
    int most = 0;
    stream >> kind >> m_width >> m_height >> most;
    stream.get();
    const std::size_t count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    const auto start = static_cast<std::size_t>(stream.tellg());
    if (kind != "P6" || most != 255 || content.size() != start + 3 * count)
        throw std::runtime_error("this is no picture: " + content.substr(0, 100));
    m_pixels.reserve(count);
    for (std::size_t at = start; at < content.size(); at += 3) {
        m_pixels.push_back({static_cast<std::uint8_t>(content[at]),
                            static_cast<std::uint8_t>(content[at + 1]),
                            static_cast<std::uint8_t>(content[at + 2])});
    }
}

const ScreenPicture::Colour& ScreenPicture::at(int x, int y) const {
    return m_pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                       static_cast<std::size_t>(x));
}

std::optional<ScreenArea> ScreenPicture::differsFrom(const ScreenPicture& other) const {
    int left = m_width;
    int top = m_height;
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            if (at(x, y) == other.at(x, y)) continue;
            left = std::min(left, x);
            top = std::min(top, y);
            right = std::max(right, x);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0) return std::nullopt;
    return ScreenArea{left, top, right - left + 1, bottom - top + 1};
}
