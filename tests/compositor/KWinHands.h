// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

#include "compositor/Hands.h"
#include "platform/Descriptor.h"

/// Hands at KWin, on its fake input: to KWin and its programs keys of a keyboard like all others.
///
/// A process of its own has them, of the user that KWin runs as: it takes keys only of a program whose file
/// it can tell.
class KWinHands final : public Hands {
  public:
    /// `socket` is the compositor's.
    explicit KWinHands(const std::string& socket);
    ~KWinHands() override;
    KWinHands(const KWinHands&) = delete;
    KWinHands& operator=(const KWinHands&) = delete;

    /// Clicks with the main button of a mouse, at that place of the screen, in KWin's own units.
    void click(unsigned x, unsigned y);

  private:
    void send(std::uint8_t keycode, bool press) override;
    void pass(const void* act, std::size_t size);
    void awaitAnswer();

    pid_t m_process = -1;
    Descriptor m_pipe;
};
