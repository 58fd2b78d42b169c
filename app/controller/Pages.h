// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class Workspace;

/// Opens a page, or a mail by its address. Where no program takes it, nobody is told.
void openPage(Workspace& workspace, std::string_view url);
