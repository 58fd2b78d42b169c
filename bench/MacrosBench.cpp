// SPDX-License-Identifier: MIT
//
// The window of the macros with ten thousand of them in a folder, each with two thousand letters, and with a
// recording of a hundred thousand steps; beside it a frame, and what was aimed at.
#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <string>
#include <vector>

#include "Seconds.h"
#include "Table.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacrosWindow.h"
#include "library/steps/Steps.h"
#include "platform/fake/FakePlatform.h"

namespace {

constexpr std::size_t macros = 10'000;
constexpr std::size_t letters = 2'000;
constexpr std::size_t keys = 100'000;
constexpr double frame = 16;
constexpr double toShow = 150;
constexpr double toOpen = 100;

std::vector<MacroListItem> items() {
    std::vector<MacroListItem> all;
    for (std::size_t i = 0; i < macros; ++i) {
        const std::string name = "Macro " + std::to_string(i);
        all.push_back(
            {name + ".keyrill", QString::fromStdString(name), QStringLiteral("Group %1").arg(i / 100)});
    }
    return all;
}

/// Words of which none is like the others.
std::string content(std::size_t number) {
    std::string text;
    while (text.size() < letters) text += "word" + std::to_string(number * 7919 + text.size()) + " ";
    return text;
}

std::string recording() {
    std::string script(steps::firstLine);
    for (std::size_t i = 0; i < keys; ++i) script += steps::keyLines(static_cast<std::uint32_t>(i % 50), 0);
    return script + std::string(steps::lastLine);
}

double milliseconds(const auto& work) { return 1000 * secondsOf(work); }

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    FakePlatform platform;
    const ServicesScope scope(platform.services);
    const std::vector<MacroListItem> all = items();
    MacrosWindow window(platform.keyboardLayout);
    const double shown = milliseconds([&] {
        window.setItems(all);
        window.show();
        QCoreApplication::processEvents();
    });
    printRow({"macros, 10,000 in the window, shown", shown, "aim", toShow, "ms", "ratio <= 1"});

    for (std::size_t i = 0; i < macros; ++i) window.list().setContent(all[i].path, content(i));
    QCoreApplication::processEvents();
    double slowest = 0;
    QString typed;
    for (const char letter : std::string("word79190")) {
        typed += QLatin1Char(letter);
        slowest = std::max(slowest, milliseconds([&] {
                               window.findChild<QLineEdit*>()->setText(typed);
                               QCoreApplication::processEvents();
                           }));
    }
    printRow({"macros, a letter in the search, the slowest of nine", slowest, "a frame", frame, "ms",
              "ratio <= 1"});

    const std::string script = recording();
    MacroEditor editor(platform.keyboardLayout);
    editor.resize(600, 400);
    editor.show();
    const double opened = milliseconds([&] {
        editor.showMacro(script, script);
        QCoreApplication::processEvents();
    });
    printRow({"macros, a recording of 100,000 keys under Keys", opened, "aim", toOpen, "ms", "ratio <= 1"});
}
