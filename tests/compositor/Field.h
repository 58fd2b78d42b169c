// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "compositor/Compositor.h"
#include "support/Child.h"

/// A text field of a native program, GTK 4's or Qt 6's, whose Ctrl+S writes its text to a file. It has the
/// focus when constructed.
class Field {
  public:
    enum class Toolkit { gtk, qt };

    Field(const Compositor& compositor, Toolkit toolkit);

    /// Waits until it has saved exactly that, or a while without, and gives what it has saved then.
    std::string saved(const std::string& expected) const;
    /// What is in it, which it tells with every change.
    std::string text() const { return contentOf(m_folder.file("text.now")); }
    /// Waits until it holds exactly that, or a while without, and gives what it holds then.
    std::string text(const std::string& expected) const;

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
};
