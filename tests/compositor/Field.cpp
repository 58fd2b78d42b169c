// SPDX-License-Identifier: MIT
#include "compositor/Field.h"

#include <stdexcept>

Field::Field(const Compositor& compositor, Toolkit toolkit) {
    auto environment = compositor.environment();
    environment["HOME"] = m_folder.path();
    environment["LC_ALL"] = "C.UTF-8";
    environment["QT_QPA_PLATFORM"] = "wayland";
    environment["GDK_BACKEND"] = "wayland";
    // Neither asks for a portal or an input method.
    environment["GTK_USE_PORTAL"] = "0";
    environment["GTK_IM_MODULE"] = "gtk-im-context-simple";
    const std::vector<std::string> command =
        toolkit == Toolkit::qt ? std::vector<std::string>{KEYRILL_QT_FIELD}
                               : std::vector<std::string>{"/usr/bin/python3", KEYRILL_GTK_FIELD};
    std::vector<std::string> whole = command;
    whole.push_back(m_folder.file("text"));
    m_program = std::make_unique<Child>(
        whole, Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
    if (!eventually([&] { return compositor.focus("field"); }, std::chrono::seconds(20))) {
        throw std::runtime_error("the field does not appear: " + contentOf(m_folder.file("log")));
    }
}

namespace {

/// A long text comes key by key.
constexpr std::chrono::seconds patience{20};

}  // namespace

std::string Field::text(const std::string& expected) const {
    eventually([&] { return text() == expected; }, patience);
    return text();
}

std::string Field::saved(const std::string& expected) const {
    const std::string file = m_folder.file("text");
    eventually([&] { return contentOf(file) == expected; }, patience);
    return contentOf(file);
}
