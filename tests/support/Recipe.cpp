// SPDX-License-Identifier: MIT
#include "support/Recipe.h"

#include <fstream>
#include <stdexcept>

#include "support/Programs.h"

std::string recipe(const std::string& title) {
    std::ifstream page(programs::languageReference);
    std::string script;
    bool isBelow = false;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("#")) isBelow = line == "### " + title;
        if (isBelow && line.starts_with("    ")) script += line.substr(4) + "\n";
    }
    if (script.empty()) throw std::runtime_error("no recipe is called " + title);
    return script;
}
