// SPDX-License-Identifier: MIT
#pragma once

#include "compositor/Sway.h"

/// A text field of a native program, GTK 4's or Qt 6's, whose Ctrl+S writes its text to a file. It has the
/// focus when constructed.
class Field {
  public:
    enum class Toolkit { gtk, qt };

    Field(const Sway& sway, Toolkit toolkit);

    /// Waits until it has saved exactly that, or a while without, and gives what it has saved then.
    std::string saved(const std::string& expected) const;

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
};
