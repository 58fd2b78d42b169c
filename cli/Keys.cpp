// SPDX-License-Identifier: MIT
#include "cli/Keys.h"

#include <poll.h>

#include <iostream>
#include <optional>
#include <vector>

#include "cli/Playback.h"
#include "cli/QuietTerminal.h"
#include "cli/Report.h"
#include "platform/EventMonitor.h"
#include "platform/EventSource.h"
#include "platform/Modifiers.h"
#include "platform/Sentence.h"
#include "platform/script/commands/KeyTable.h"

namespace {

/// Serves what the session hears of until the function says that it is enough, or a signal comes.
template <typename Enough>
void serve(Playback& playback, const Enough& enough) {
    const std::vector<EventSource*> sources = playback.session().eventSources();
    std::vector<pollfd> waited;
    waited.reserve(sources.size() + 1);
    for (const EventSource* source : sources) waited.push_back({source->fileDescriptor(), POLLIN, 0});
    waited.push_back({playback.signals().fileDescriptor(), POLLIN, 0});
    while (!enough() && playback.signals().number() == 0 && playback.connection()) {
        for (EventSource* source : sources) source->dispatch();
        if (!enough()) poll(waited.data(), waited.size(), -1);
    }
}

}  // namespace

int printKeys() {
    std::cout << script::keyLines();
    return 0;
}

int printPressedKey() {
    auto playback = Playback::make();
    if (!playback) {
        reportError("", playback.error());
        return 1;
    }
    std::optional<std::uint32_t> code;
    EventMonitor& monitor = playback.value()->session().sessionServices().eventMonitor;
    const auto installed = monitor.install([&](const KeyEvent& event) {
        const bool isForOthers = (event.modifiers & modifier::control) != 0;
        if (event.kind == KeyEventKind::keyDown && !isForOthers && !code) code = event.keyCode;
    });
    if (!installed) {
        reportError("", installed.error());
        return 1;
    }
    {
        const QuietTerminal terminal;
        std::cerr << sentence("ScriptTool", "Press a key.").text() << std::endl;
        serve(*playback.value(), [&] { return code.has_value(); });
        if (code) terminal.awaitKey();
    }
    if (code) {
        std::cout << *code << "\t" << script::keyTitle(*code) << std::endl;
    } else if (const auto connection = playback.value()->connection(); !connection) {
        reportError("", connection.error());
    }
    const int signalNumber = playback.value()->finish();
    if (!code && signalNumber != 0) endBySignal(signalNumber);
    return code ? 0 : 1;
}
