// SPDX-License-Identifier: MIT
#include "platform/fake/FakeWorkspace.h"

Result<> FakeWorkspace::openUrl(std::string_view url) {
    m_journal.note("openUrl", url);
    return open(m_openedUrls, url);
}

Result<> FakeWorkspace::open(std::vector<std::string>& opened, std::string_view text) {
    if (const auto error = m_nextError.take()) return *error;
    if (text.find('\0') != std::string_view::npos)
        return Error{"A text with a zero byte cannot be opened.", ""};
    opened.emplace_back(text);
    return {};
}
