// SPDX-License-Identifier: MIT
#include "Player.h"

#include <stdexcept>

namespace {

template <typename Value>
Value valueOf(Result<Value> result) {
    if (!result) throw std::runtime_error(result.error().message);
    return std::move(result).value();
}

}  // namespace

Player::Player(const std::string& display)
    : m_manager(valueOf(x11::X11EventManager::open(m_clock, display))),
      m_injector(std::make_unique<x11::X11KeyInjector>(
          m_manager->runWatch(), m_clock,
          x11::X11KeyInjector::Options{
              .display = display, .guard = KEYRILL_GUARD, .runtimeFolder = m_folder.path()})) {}

std::unique_ptr<InjectionSession> Player::run(const InjectionPlan& plan) {
    return valueOf(m_injector->open(plan));
}

void expectGoing(const Step<>& step) {
    if (step) return;
    const Halt& halt = step.error();
    throw std::runtime_error(halt.isCancelled() ? "the run was cancelled" : halt.error->message);
}
