// SPDX-License-Identifier: MIT
#include "app/controller/MacrosDesk.h"

#include <QElapsedTimer>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <utility>

#include "app/controller/Gate.h"
#include "app/controller/ScriptNotices.h"
#include "app/controller/Stage.h"
#include "app/macros/FolderShelf.h"
#include "app/macros/KeysView.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacrosWindow.h"
#include "core/Macro.h"
#include "engine/AppleScript.h"
#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "library/steps/Steps.h"
#include "platform/MacroFiles.h"
#include "platform/ScriptingService.h"

namespace {

/// What reading for the search may take of one turn of the loop.
constexpr qint64 readingMilliseconds = 4;
/// From a change to its draft on the disk.
constexpr std::chrono::milliseconds draftDelay{500};

/// What people would look for in a macro: what it types, or its script.
std::string contentOf(const std::string& script, const KeyboardLayout& layout) {
    const auto recording = steps::RecordedScript::parse(script);
    if (!recording) return script;
    std::string content;
    for (const steps::Step& step : steps::stepsOf(*recording, layout)) content += step.text;
    return content;
}

QString shown(const Error& error) {
    return QString::fromStdString(error.hint.empty() ? error.message : error.message + " " + error.hint);
}

/// The lines between the first and the last of a recording; empty if it is none.
std::optional<std::string> linesOf(const std::string& script) {
    if (!steps::RecordedScript::parse(script)) return std::nullopt;
    return script.substr(steps::firstLine.size(),
                         script.size() - steps::firstLine.size() - steps::lastLine.size());
}

}  // namespace

MacrosDesk::MacrosDesk(const Means& means)
    : m_means(means),
      m_shelf(std::make_unique<FolderShelf>([&files = means.files] { return files.prepareFolder(); })) {
    connect(m_shelf.get(), &MacroShelf::changed, this, &MacrosDesk::showItems);
    connect(m_shelf.get(), &MacroShelf::contentChanged, this, &MacrosDesk::followContent);
    m_contents.setInterval(0);
    connect(&m_contents, &QTimer::timeout, this, &MacrosDesk::readContents);
    m_draftTimer.setSingleShot(true);
    m_draftTimer.setInterval(draftDelay);
    connect(&m_draftTimer, &QTimer::timeout, this, &MacrosDesk::keepDrafts);
}

MacrosDesk::~MacrosDesk() { keepDrafts(); }

MacrosWindow& MacrosDesk::builtWindow() {
    if (!m_window) {
        m_window = std::make_unique<MacrosWindow>(m_means.layout);
        connectWindow();
        m_unsaved = m_means.drafts.all();
        m_shelf->open();
        showItems();
        tellOfDrafts();
    }
    return *m_window;
}

void MacrosDesk::connectWindow() {
    MacrosWindow* const window = m_window.get();
    connect(window, &MacrosWindow::chosenChanged, this, &MacrosDesk::openMacro);
    connect(window, &MacrosWindow::textEdited, this, &MacrosDesk::noteEdit);
    connect(window, &MacrosWindow::saveWanted, this, &MacrosDesk::save);
    connect(window, &MacrosWindow::playPressed, window, &MacrosWindow::countDown);
    connect(window, &MacrosWindow::playWanted, this, &MacrosDesk::play);
    connect(window, &MacrosWindow::recordWanted, this, [this] { record(Purpose::newMacro); });
    connect(window, &MacrosWindow::keysWanted, this, [this] { record(Purpose::keys); });
    connect(window, &MacrosWindow::duplicateWanted, this, &MacrosDesk::duplicate);
    connect(window, &MacrosWindow::renameWanted, this, &MacrosDesk::rename);
    connect(window, &MacrosWindow::deleteWanted, this, &MacrosDesk::remove);
    connect(window, &MacrosWindow::actionWanted, this, &MacrosDesk::restore);
}

void MacrosDesk::show() {
    constexpr double opaque = 1;
    m_means.stage.present(builtWindow(), opaque);
}

void MacrosDesk::showItems() {
    if (!m_window) return;
    std::vector<MacroListItem> items = m_shelf->items();
    // What is not saved is to be seen also when its file is gone.
    for (const auto& [path, text] : m_unsaved) {
        const auto isIt = [&path = path](const MacroListItem& item) { return item.path == path; };
        if (std::any_of(items.begin(), items.end(), isIt)) continue;
        items.push_back({path, QString::fromStdString(std::filesystem::path(path).stem().string()), {}});
    }
    m_window->setItems(std::move(items));
    for (const auto& [path, text] : m_unsaved) m_window->list().setChanged(path, true);
    m_nextContent = 0;
    m_contents.start();
    if (m_awaited.empty() || !m_window->list().indexOf(m_awaited).isValid()) return;
    const std::string path = std::exchange(m_awaited, {});
    if (std::exchange(m_namesAwaited, false)) {
        m_window->beginRename(path);
    } else {
        m_window->choose(path);
    }
}

void MacrosDesk::readContents() {
    QElapsedTimer watch;
    watch.start();
    MacroListModel& list = m_window->list();
    while (m_nextContent < list.items().size() && watch.elapsed() < readingMilliseconds) {
        const std::string& path = list.items()[m_nextContent++].path;
        if (list.hasContent(path)) continue;
        const Result<std::string> text = m_means.files.read(m_shelf->fileOf(path));
        list.setContent(path, text ? contentOf(text.value(), m_means.layout) : std::string());
    }
    if (m_nextContent >= list.items().size()) m_contents.stop();
}

void MacrosDesk::openMacro(const std::string& path) {
    if (path.empty()) return m_window->showMacro({}, {});
    const Result<std::string> text = m_means.files.read(m_shelf->fileOf(path));
    const auto unsaved = m_unsaved.find(path);
    if (!text && unsaved == m_unsaved.end()) return m_window->showFault(shown(text.error()));
    m_saved = text ? text.value() : std::string();
    m_window->showMacro(m_saved, unsaved == m_unsaved.end() ? m_saved : unsaved->second);
    if (!text) m_window->warn(tr("The file of this macro is gone. If you save, it is there again."));
}

/// Somebody else has changed the file.
void MacrosDesk::followContent(const std::string& path) {
    if (!m_window) return;
    m_window->list().forgetContent(path);
    m_nextContent = 0;
    m_contents.start();
    if (path != m_window->chosen()) return;
    const Result<std::string> text = m_means.files.read(m_shelf->fileOf(path));
    if (!text || text.value() == m_saved) return;
    if (m_unsaved.contains(path)) {
        m_window->warn(tr("Another program has changed this macro. If you save, your text replaces it."));
    } else {
        openMacro(path);
    }
}

void MacrosDesk::noteEdit() {
    const std::string& path = m_window->chosen();
    if (path.empty()) return;
    const bool isChanged = m_window->editor().isChanged();
    if (isChanged) {
        m_unsaved[path] = m_window->editor().text();
    } else {
        m_unsaved.erase(path);
    }
    m_window->list().setChanged(path, isChanged);
    m_undrafted.insert(path);
    if (!m_draftTimer.isActive()) m_draftTimer.start();
}

void MacrosDesk::keepDrafts() {
    for (const std::string& path : std::exchange(m_undrafted, {})) {
        const auto unsaved = m_unsaved.find(path);
        if (unsaved == m_unsaved.end()) {
            m_means.drafts.forget(path);
        } else if (const Result<> kept = m_means.drafts.keep(path, unsaved->second); !kept && m_window) {
            m_window->warn(tr("What is not saved would not outlive a crash. %1").arg(shown(kept.error())));
        }
    }
}

/// Of an earlier run.
void MacrosDesk::tellOfDrafts() {
    if (m_unsaved.empty()) return;
    QStringList names;
    for (const auto& [path, text] : m_unsaved)
        names.append(QString::fromStdString(std::filesystem::path(path).stem().string()));
    m_window->tell(tr("What was not saved is there again: %1.").arg(names.join(tr(", "))));
}

void MacrosDesk::save() {
    const std::string path = m_window->chosen();
    const std::string text = m_window->editor().text();
    const Result<> written = m_means.files.write(m_shelf->fileOf(path), text);
    if (!written) return m_window->warn(shown(written.error()));
    m_saved = text;
    m_window->editor().noteSaved();
    noteEdit();
    m_window->list().setContent(path, contentOf(text, m_means.layout));
    m_window->tell(tr("Saved."));
}

/// The windows make room for the program that is recorded in.
void MacrosDesk::record(Purpose purpose) {
    if (engineState().recording || !m_means.gate.isOpen()) return;
    m_purpose = purpose;
    m_means.stage.hide();
    toggleRecording();
    // Where nothing can be recorded the user has been told.
    if (!engineState().recording) recordingEnded();
}

void MacrosDesk::takeRecording(const Macro& macro) {
    const Purpose purpose = std::exchange(m_purpose, Purpose::none);
    if (purpose == Purpose::none) return;
    m_means.stage.unhide();
    if (purpose == Purpose::keys) {
        const auto lines = linesOf(macro.script());
        if (lines) m_window->editor().keys().insertLines(*lines);
        return;
    }
    const std::string folder = m_means.files.prepareFolder();
    const std::string first = folder + "/" + tr("New Macro").toStdString() + ".keyrill";
    const std::string file = m_means.files.read(first) ? FileMoves::freeName(first) : first;
    const Result<> written = m_means.files.write(file, macro.script());
    if (!written) return m_window->warn(shown(written.error()));
    m_awaited = m_shelf->pathOf(file);
    m_namesAwaited = true;
}

void MacrosDesk::recordingEnded() {
    if (std::exchange(m_purpose, Purpose::none) != Purpose::none) m_means.stage.unhide();
}

void MacrosDesk::play() {
    if (engineState().recording || !m_means.gate.isOpen()) return;
    const std::string script = m_window->editor().text();
    // The window goes last, so that the focus passes from it to the one before.
    m_means.stage.hide(m_window.get());
    m_means.stage.fadeOut(*m_window);
    m_means.stage.awaitFocusElsewhere(m_window.get());
    m_means.scripting.startPlayback();
    AppleScript::runAppleScript(script);
    m_means.notices.tellOfPlayback();
    m_window->setWindowOpacity(1);
    m_window->show();
    m_means.stage.unhide();
}

void MacrosDesk::duplicate(const std::string& path) {
    const std::string file = m_shelf->fileOf(path);
    const std::string copy = FileMoves::freeName(file);
    const Result<> copied = FileMoves::copy(file, copy);
    if (!copied) return m_window->warn(shown(copied.error()));
    m_awaited = m_shelf->pathOf(copy);
    m_namesAwaited = true;
}

void MacrosDesk::rename(const std::string& path, const QString& name) {
    const std::string file = m_shelf->fileOf(path);
    const Result<std::string> wanted = FileMoves::named(file, name);
    if (!wanted) return m_window->warn(shown(wanted.error()));
    const Result<> renamed = FileMoves::rename(file, wanted.value());
    if (!renamed) return m_window->warn(shown(renamed.error()));
    const std::string now = m_shelf->pathOf(wanted.value());
    if (auto unsaved = m_unsaved.extract(path)) {
        unsaved.key() = now;
        m_unsaved.insert(std::move(unsaved));
        m_window->list().setChanged(path, false);
        m_undrafted.insert({path, now});
        m_draftTimer.start();
    }
    if (m_window->chosen() == path) m_window->noteRenamed(now);
}

void MacrosDesk::remove(const std::string& path) {
    auto trashed = FileMoves::trash(m_shelf->fileOf(path));
    if (!trashed) return m_window->warn(shown(trashed.error()));
    m_trashed = std::move(trashed).value();
    // For when it comes back.
    m_trashedText.reset();
    if (auto unsaved = m_unsaved.extract(path)) m_trashedText = std::move(unsaved.mapped());
    m_window->list().setChanged(path, false);
    m_undrafted.insert(path);
    m_draftTimer.start();
    m_window->choose({});
    m_window->tell(tr("The macro is in the trash."), tr("Undo"));
}

void MacrosDesk::restore() {
    if (!m_trashed) return;
    const TrashedFile file = *std::exchange(m_trashed, std::nullopt);
    const Result<> restored = FileMoves::restore(file);
    if (!restored) return m_window->warn(shown(restored.error()));
    m_window->tell({});
    m_awaited = m_shelf->pathOf(file.from);
    if (m_trashedText) {
        m_unsaved[m_awaited] = *std::exchange(m_trashedText, std::nullopt);
        m_undrafted.insert(m_awaited);
        m_draftTimer.start();
    }
}
