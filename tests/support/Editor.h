// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "support/WindowedProgram.h"

/// A text editor as people have it, with an empty file open: mousepad, which is a GTK 3 program, or
/// featherpad, which is a Qt 5 one. Ctrl+S writes its text, as it stands, to the file. It has the focus when
/// constructed.
class Editor : public WindowedProgram {
  public:
    enum class Toolkit { gtk, qt };

    struct Options {
        /// On top of the test's own; an empty value unsets.
        std::map<std::string, std::string> environment = {};
        /// The file's suffix, by which the editor knows its language.
        std::string suffix = ".txt";
    };

    Editor(const std::string& display, Toolkit toolkit) : Editor(display, toolkit, Options()) {}
    Editor(const std::string& display, Toolkit toolkit, const Options& options);

    /// What the file holds, UTF-8.
    std::string saved() const { return contentOf(m_file); }
    /// Waits until it holds exactly that, or a while without, and gives what it holds then.
    std::string saved(const std::string& expected,
                      std::chrono::milliseconds deadline = std::chrono::seconds(10)) const;

    void focus() const;
    bool hasFocus() const;

  private:
    std::string m_file;
};
