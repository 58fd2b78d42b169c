// SPDX-License-Identifier: MIT
#include "compositor/ScreenPicture.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <stdexcept>

#include "compositor/BusClient.h"
#include "platform/Descriptor.h"

namespace {

/// Blue, green, red and a byte that means nothing, line by line.
struct RawScreen {
    int width = 0;
    int height = 0;
    /// Bytes in a line.
    int stride = 0;
    std::string bytes;
};

std::string readAll(const Descriptor& pipe) {
    std::string all;
    std::array<char, 65536> part{};
    for (ssize_t length = 0; (length = read(pipe.number(), part.data(), part.size())) > 0;)
        all.append(part.data(), static_cast<std::size_t>(length));
    return all;
}

/// KWin's only screen.
RawScreen takeScreen(const std::string& bus) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe for the picture");
    const Descriptor out(ends[0]);
    Descriptor in(ends[1]);
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "native-resolution", g_variant_new_boolean(TRUE));
    const BusClient client(bus);
    const auto answer =
        client.callWithFile({"org.kde.KWin.ScreenShot2", "/org/kde/KWin/ScreenShot2",
                             "org.kde.KWin.ScreenShot2", "CaptureScreen"},
                            g_variant_new("(sa{sv}h)", "Virtual-0", &options, 0), in.number(), "(a{sv})");
    in.reset();
    const BusClient::Value facts(g_variant_get_child_value(answer.get(), 0));
    RawScreen screen;
    const auto number = [&](const char* name) {
        guint32 value = 0;
        if (g_variant_lookup(facts.get(), name, "u", &value) == FALSE)
            throw std::runtime_error(std::string("KWin does not say: ") + name);
        return static_cast<int>(value);
    };
    screen.width = number("width");
    screen.height = number("height");
    screen.stride = number("stride");
    screen.bytes = readAll(out);
    return screen;
}

}  // namespace

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

ScreenPicture::ScreenPicture(const KWin& kwin) {
    constexpr std::size_t bytesInPixel = 4;
    const RawScreen screen = takeScreen(kwin.environment().at("DBUS_SESSION_BUS_ADDRESS"));
    m_width = screen.width;
    m_height = screen.height;
    const auto lineLength = static_cast<std::size_t>(screen.stride);
    if (screen.bytes.size() != lineLength * static_cast<std::size_t>(m_height))
        throw std::runtime_error("KWin gives no whole picture");
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            const std::size_t at =
                static_cast<std::size_t>(y) * lineLength + static_cast<std::size_t>(x) * bytesInPixel;
            const auto byte = [&](std::size_t place) {
                return static_cast<std::uint8_t>(screen.bytes[at + place]);
            };
            m_pixels.push_back({byte(2), byte(1), byte(0)});
        }
    }
}

void ScreenPicture::keep(const std::string& name) const {
    const char* const pictures = std::getenv("KEYRILL_PICTURES");
    if (pictures == nullptr) return;
    std::filesystem::create_directories(pictures);
    std::ofstream file(std::string(pictures) + "/" + name + ".ppm", std::ios::binary);
    file << "P6\n" << m_width << " " << m_height << "\n255\n";
    for (const Colour& pixel : m_pixels)
        for (const std::uint8_t part : pixel) file.put(static_cast<char>(part));
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
