// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTimer>
#include <functional>

#include "app/tray/MenuFacts.h"
#include "engine/PlayRequest.h"
#include "platform/Result.h"

class Stage;

/// What is asked to be played from outside of the program. It begins when the event loop runs next, so that
/// whoever asks is answered first, and not at all if something has come between until then; keys that are
/// held then are waited for. What Play plays stays.
class AskedPlays {
  public:
    /// `facts` are those of the moment. The others outlive the desk.
    AskedPlays(std::function<MenuFacts()> facts, Stage& stage);

    /// Plays that once it can. An error says why nothing can be played now.
    Result<> ask(PlayRequest request);
    /// Forgets a play that has not begun; whether there was one.
    bool takeBack();

  private:
    /// Why nothing can be played now; empty if something can.
    QString obstacle() const;
    void begin();

    std::function<MenuFacts()> m_facts;
    Stage& m_stage;
    PlayRequest m_request;
    QTimer m_next;
};
