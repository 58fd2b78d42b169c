// SPDX-License-Identifier: MIT
//
// The window of the macros with ten thousand of them in a folder, each with two thousand letters, and with a
// recording of a hundred thousand steps; beside it a frame, and what was aimed at.
#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "Seconds.h"
#include "Table.h"
#include "app/controller/Gate.h"
#include "app/controller/MacrosDesk.h"
#include "app/controller/Stage.h"
#include "app/library/LibraryController.h"
#include "app/macros/KeysView.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacrosWindow.h"
#include "library/steps/Steps.h"
#include "platform/fake/FakePlatform.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/LocalMacroFiles.h"
#include "platform/none/NoWindows.h"
#include "support/Child.h"

namespace {

constexpr std::size_t macros = 10'000;
constexpr std::size_t letters = 2'000;
constexpr std::size_t keys = 100'000;
constexpr double frame = 16;
constexpr double toShow = 150;
constexpr double toOpen = 100;

/// A script of words of which none is like the others.
std::string content(std::size_t number) {
    std::string text = "-- ";
    while (text.size() < letters) text += "word" + std::to_string(number * 7919 + text.size()) + " ";
    return text + "\nbeep\n";
}

void fill(const std::string& folder) {
    for (std::size_t number = 0; number < macros; ++number) {
        const std::string group = folder + "/group" + std::to_string(number / 100);
        std::filesystem::create_directories(group);
        std::ofstream(group + "/Macro " + std::to_string(number) + ".keyrill") << content(number);
    }
}

std::string recording() {
    std::string script(steps::firstLine);
    for (std::size_t i = 0; i < keys; ++i) script += steps::keyLines(static_cast<std::uint32_t>(i % 50), 0);
    return script + std::string(steps::lastLine);
}

double milliseconds(const auto& work) { return 1000 * secondsOf(work); }

void printLimit(const std::string& what, double ours, const std::string& limit, double most) {
    printRow({what, ours, limit, most, "ms", "ratio <= 1"});
}

/// Of a folder with all those macros.
class Library {
  public:
    explicit Library(FakePlatform& platform)
        : m_files(m_home.path(), m_home.file("data")),
          m_controller({.folderFollower = m_follower,
                        .macroRecords = platform.macroRecords,
                        .recordings = platform.recordings,
                        .macroFiles = m_files,
                        .hotKeys = platform.hotKeys,
                        .firstHotKey = 1000,
                        .notifications = platform.notifications,
                        .scripting = platform.scripting,
                        .draftFolder = {}}),
          m_gate(platform.eventMonitor, [] {}),
          m_desk({m_controller, m_files, platform.keyboardLayout, m_gate, m_stage,
                  DraftFiles(m_home.file("state"))}) {
        fill(m_files.folder());
        m_controller.start();
        while (!m_controller.library().isRead()) m_follower.dispatch();
    }

    void show() {
        m_desk.show();
        QCoreApplication::processEvents();
    }
    MacrosWindow& window() { return *m_desk.window(); }

    /// The longest that a turn of the event loop takes until all contents are known.
    double slowestTurn() {
        const std::string last = m_controller.library().entries().back().path;
        double slowest = 0;
        while (!window().list().hasContent(last))
            slowest = std::max(slowest, milliseconds([] { QCoreApplication::processEvents(); }));
        return slowest;
    }

  private:
    TemporaryFolder m_home;
    LocalMacroFiles m_files;
    LocalFolderFollower m_follower;
    NoWindows m_windows;
    LibraryController m_controller;
    Gate m_gate;
    Stage m_stage{m_windows, [] { return std::vector<QWidget*>(); }};
    MacrosDesk m_desk;
};

double slowestLetter(MacrosWindow& window, const std::string& word) {
    double slowest = 0;
    QString typed;
    for (const char letter : word) {
        typed += QLatin1Char(letter);
        slowest = std::max(slowest, milliseconds([&] {
                               window.findChild<QLineEdit*>(QStringLiteral("search"))->setText(typed);
                               QCoreApplication::processEvents();
                           }));
    }
    return slowest;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    FakePlatform platform;
    const ServicesScope scope(platform.services);
    Library library(platform);
    printLimit("macros, 10,000 in the window, shown", milliseconds([&] { library.show(); }), "aim", toShow);
    printLimit("macros, while all are read, the slowest turn", library.slowestTurn(), "a frame", frame);
    printLimit("macros, a letter in the search, the slowest of nine",
               slowestLetter(library.window(), "word79190"), "a frame", frame);

    const std::string script = recording();
    MacroEditor editor(platform.keyboardLayout);
    editor.resize(600, 400);
    editor.show();
    const double opened = milliseconds([&] {
        editor.showMacro(script, script);
        QCoreApplication::processEvents();
    });
    printLimit("macros, a recording of 100,000 keys under Keys", opened, "aim", toOpen);
}
