// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include "engine/PlayRequest.h"
#include "platform/Result.h"

class Gate;
class MenuDesk;
class Stage;

/// What is asked to be played from outside of the program. It begins when the event loop runs next, so that
/// whoever asks is answered first; keys that are held then are waited for. What Play plays stays.
class AskedPlays {
  public:
    /// All outlive the desk.
    AskedPlays(MenuDesk& menu, const Gate& gate, Stage& stage);

    /// Plays that once it can. An error says why nothing can be played now.
    Result<> ask(PlayRequest request);
    /// Forgets a play that has not begun; whether there was one.
    bool takeBack();

  private:
    void begin();

    MenuDesk& m_menu;
    const Gate& m_gate;
    Stage& m_stage;
    PlayRequest m_request;
    QTimer m_next;
};
