// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"
#include "support/Programs.h"

/// keyrill-script run, playing a script on a display.
class Play {
  public:
    Play(const std::string& display, const std::string& script, std::vector<std::string> options = {}) {
        std::ofstream(m_folder.file("script"), std::ios::binary) << script;
        options.insert(options.begin(), {programs::scriptTool, "run"});
        options.push_back(m_folder.file("script"));
        m_program = std::make_unique<Child>(
            options,
            Child::Options{.environment = {{"DISPLAY", display}, {"XDG_RUNTIME_DIR", m_folder.path()}},
                           .outputFile = m_folder.file("output")});
    }

    Child& program() { return *m_program; }
    /// What it has told so far.
    std::string output() const { return contentOf(m_folder.file("output")); }

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
};
