// SPDX-License-Identifier: MIT
//
// How fast a text is typed into a terminal, until its file holds the whole of it.
#include <fstream>
#include <stdexcept>
#include <string>

#include "Player.h"
#include "Table.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

constexpr double aim = 50'000;
constexpr std::size_t ourLength = 50'000;
constexpr std::size_t theirLength = 5'000;

/// Letters, capitals and digits in lines of 60.
std::string textOf(std::size_t length) {
    const std::string alphabet = "the quick brown fox jumps over THE LAZY DOG 0123456789 ";
    std::string text;
    for (std::size_t i = 0; i < length; ++i) text += i % 60 == 59 ? '\n' : alphabet[i % alphabet.size()];
    return text;
}

/// Waits for the text in the terminal's file; one that never comes whole ends the program.
void awaitWhole(const Terminal& terminal, const std::string& text) {
    const bool whole =
        eventually([&] { return terminal.typed().size() >= text.size(); }, std::chrono::seconds(60));
    if (!whole || terminal.typed() != text) throw std::runtime_error("the text did not arrive whole");
}

double oursPerSecond(const XServer& server) {
    const Terminal terminal(server.display());
    Player player(server.display());
    const std::string text = textOf(ourLength);
    const double seconds = secondsOf([&] {
        expectGoing(player.run({.texts = {text}})->text(text, 0));
        awaitWhole(terminal, text);
    });
    return static_cast<double>(text.size()) / seconds;
}

double theirsPerSecond(const XServer& server) {
    const Terminal terminal(server.display());
    const TemporaryFolder folder;
    const std::string text = textOf(theirLength);
    std::ofstream(folder.file("text")) << text;
    const double seconds = secondsOf([&] {
        outputOf({"xdotool", "type", "--delay", "0", "--file", folder.file("text")},
                 {{"DISPLAY", server.display()}});
        awaitWhole(terminal, text);
    });
    return static_cast<double>(text.size()) / seconds;
}

}  // namespace

int main() {
    const XServer server;
    const double ours = oursPerSecond(server);
    printRow({"text into xterm", ours, "aim", aim, "characters/s", "ratio >= 1"});
    printRow({"text into xterm", ours, "xdotool type --delay 0", theirsPerSecond(server), "characters/s",
              "ratio > 1"});
}
