// SPDX-License-Identifier: MIT
#include "x11/press/InjectorTest.h"

#include <sstream>
#include <stdexcept>

InjectorOnDisplay::InjectorOnDisplay(const std::string& display) : m_display(display) {
    auto manager = x11::X11EventManager::open(m_clock, display);
    if (!manager) throw std::runtime_error(manager.error().message);
    m_manager = std::move(manager).value();
    begin();
}

void InjectorOnDisplay::begin(std::chrono::milliseconds patience) {
    m_injector =
        std::make_unique<x11::X11KeyInjector>(m_manager->runWatch(), m_clock,
                                              x11::X11KeyInjector::Options{.display = m_display,
                                                                           .guard = KEYRILL_GUARD,
                                                                           .runtimeFolder = m_folder.path(),
                                                                           .patience = patience});
    const auto started = m_injector->start();
    if (!started) throw std::runtime_error(started.error().message);
}

std::unique_ptr<InjectionSession> InjectorOnDisplay::run(const InjectionPlan& plan) {
    auto session = m_injector->open(plan);
    if (!session) throw std::runtime_error(session.error().message);
    return std::move(session).value();
}

std::string InjectorTest::command(const std::vector<std::string>& words) const {
    return outputOf(words, {{"DISPLAY", display()}});
}

std::string wordsOf(const Step<>& step) {
    if (step) return "going";
    return step.error().isCancelled() ? "cancelled" : step.error().error->message;
}

std::string ideographs(int count) {
    std::string text;
    for (int index = 0; index < count; ++index) {
        const int code = 0x4E00 + index;
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
    return text;
}

std::vector<std::string> wordsOf(const std::vector<CoreClient::KeyEvent>& events) {
    std::vector<std::string> lines;
    for (const auto& event : events) {
        std::ostringstream line;
        line << (event.press ? "press " : "release ") << int{event.keycode} << " 0x" << std::hex
             << event.state;
        lines.push_back(line.str());
    }
    return lines;
}
