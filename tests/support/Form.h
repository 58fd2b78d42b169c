// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "support/WindowedProgram.h"

/// A program with a form, of GTK 4 (gtk_form.py) or of Qt 6 (qt_form.cpp): three entries, the buttons Cancel
/// and OK, and a text of many lines, in the order of Tab. Return in an entry is OK. It has the focus when
/// constructed, and in it the first entry.
class Form : public WindowedProgram {
  public:
    enum class Toolkit { gtk4, qt6 };

    Form(const std::string& display, Toolkit toolkit);

    /// What a part holds as the program has it, UTF-8: "first", "second", "third", "text"; or "pressed", the
    /// button that was pressed last.
    std::string content(const std::string& part) const { return contentOf(folder().file(part)); }
    /// Waits until it holds exactly that, or a while without, and gives what it holds then.
    std::string content(const std::string& part, const std::string& expected) const;

    bool hasFocus() const;
};

std::string nameOf(Form::Toolkit toolkit);
