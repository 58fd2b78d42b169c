// SPDX-License-Identifier: MIT
#include "app/controller/MacrosDesk.h"

#include <QLocale>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <utility>

#include "app/controller/Gate.h"
#include "app/controller/LibraryItems.h"
#include "app/controller/ShortcutNotices.h"
#include "app/controller/Stage.h"
#include "app/library/LibraryController.h"
#include "app/library/MacroTitles.h"
#include "app/macros/KeysView.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/macros/MacrosWindow.h"
#include "app/macros/ScriptCheck.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "library/steps/Steps.h"
#include "platform/ErrorText.h"
#include "platform/MacroFiles.h"

namespace {

/// Nearly all texts are there by then, before anybody sees that there was nothing.
constexpr std::chrono::milliseconds glance{50};
/// What a folder may take before it is told that it does not answer.
constexpr std::chrono::milliseconds patience{500};

/// What people would look for in a macro: what it types and what is told about it, or its script.
std::string contentOf(const std::string& script, const KeyboardLayout& layout) {
    const auto recording = steps::RecordedScript::parse(script);
    if (!recording) return script;
    std::string content = recording.value().comments();
    for (const steps::Step& step : steps::stepsOf(recording.value(), layout)) content += step.text;
    return content;
}

QString shown(const Error& error) { return QString::fromStdString(inOneParagraph(error)); }

/// The lines between the first and the last of a recording; empty if it is none.
std::optional<std::string> linesOf(const std::string& script) {
    if (!steps::RecordedScript::parse(script)) return std::nullopt;
    return script.substr(steps::firstLine.size(),
                         script.size() - steps::firstLine.size() - steps::lastLine.size());
}

/// What else is to be said where Play still has a macro that is not in the history.
QString remainder(const RecordingHistory& history) {
    const auto& current = engineState().currentMacro;
    if (!current) return {};
    const auto& entries = history.entries();
    const auto isCurrent = [&current](const HistoryEntry& entry) {
        return entry.macroId == current->macroId();
    };
    if (std::any_of(entries.begin(), entries.end(), isCurrent)) return {};
    return QLatin1Char(' ') + MacrosDesk::tr("Play has the latest macro until there is another.");
}

QString goneText() {
    return MacrosDesk::tr("The file of this macro is gone. If you save, it is there again.");
}

QString replacedText() {
    return MacrosDesk::tr("Another program has changed this macro. If you save, your text replaces it.");
}

bool isMadeFrom(const Draft& draft, const std::string& saved) { return draft.base == fingerprintOf(saved); }

std::vector<MacrosWindow::Recording> recordingsOf(const RecordingHistory& history) {
    std::vector<MacrosWindow::Recording> recordings;
    for (const HistoryEntry& entry : history.entries()) {
        const qint64 milliseconds = entry.recordedAt.time_since_epoch().count();
        recordings.push_back({.macroId = entry.macroId,
                              .title = QString::fromStdString(entry.title),
                              .recordedAt = QDateTime::fromMSecsSinceEpoch(milliseconds)});
    }
    return recordings;
}

}  // namespace

MacrosDesk::MacrosDesk(const Means& means)
    : m_means(means),
      m_library(means.library.library()),
      m_unsaved(means.drafts),
      m_reader([&files = means.files](const std::string& file) { return files.read(file); }) {
    connectTimers();
    connect(&m_reader, &TextReader::wasReadLater, this, &MacrosDesk::takeContent);
    connect(&m_reader, &TextReader::wasReadFirst, this, &MacrosDesk::takeText);
    connect(&m_unsaved, &UnsavedTexts::notKept, this, [this](const Error& why) {
        if (m_window) m_window->warn(tr("What is not saved would not outlive a crash. %1").arg(shown(why)));
    });
    m_library.addListener(*this);
}

MacrosDesk::~MacrosDesk() { m_library.removeListener(*this); }

void MacrosDesk::connectTimers() {
    // What comes in a burst is shown once.
    m_showing.setSingleShot(true);
    m_showing.setInterval(0);
    connect(&m_showing, &QTimer::timeout, this, &MacrosDesk::showItems);
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this,
            [this] { m_window->tell(tr("The macro is still being read: its folder does not answer.")); });
    connect(&m_means.library, &LibraryController::faultTold, this, [this](const Error& why) {
        if (m_window) m_window->warn(shown(why));
    });
    connect(&m_means.library, &LibraryController::hotKeyChanged, this, [this](const QByteArray& path) {
        if (!m_window) return;
        m_showing.start();
        if (path.toStdString() == m_window->chosen()) showSettings();
    });
}

MacrosWindow& MacrosDesk::builtWindow() {
    if (!m_window) {
        m_window = std::make_unique<MacrosWindow>(m_means.layout);
        connectWindow();
        loadUnsaved();
        showItems();
        readContents();
        tellOfUnsaved();
        tellFaults();
    }
    return *m_window;
}

void MacrosDesk::connectWindow() {
    MacrosWindow* const window = m_window.get();
    connect(window, &MacrosWindow::chosenChanged, this, &MacrosDesk::openMacro);
    connect(window, &MacrosWindow::textEdited, this, &MacrosDesk::noteEdit);
    connect(window, &MacrosWindow::saveWanted, this, &MacrosDesk::save);
    connect(window, &MacrosWindow::playPressed, this, &MacrosDesk::beginPlay);
    connect(window, &MacrosWindow::playWanted, this, &MacrosDesk::play);
    connect(window, &MacrosWindow::recordWanted, this, [this] { record(Purpose::newMacro); });
    connect(window, &MacrosWindow::keysWanted, this, [this] { record(Purpose::keys); });
    connect(window, &MacrosWindow::duplicateWanted, this, &MacrosDesk::duplicate);
    connect(window, &MacrosWindow::renameWanted, this, &MacrosDesk::rename);
    connect(window, &MacrosWindow::deleteWanted, this, &MacrosDesk::remove);
    connect(window, &MacrosWindow::undoWanted, this, &MacrosDesk::restore);
    connect(window, &MacrosWindow::keepWanted, this, &MacrosDesk::keep);
    connect(&window->settings(), &MacroSettingsRow::hotKeyWanted, this, &MacrosDesk::setHotKey);
    connect(&window->settings(), &MacroSettingsRow::playWanted, this, &MacrosDesk::setPlay);
    connect(&window->settings(), &MacroSettingsRow::recordingChanged, this, &MacrosDesk::holdHotKeys);
    connect(window, &MacrosWindow::forgetWanted, this, &MacrosDesk::forget);
    connect(window, &MacrosWindow::forgetAllWanted, this, &MacrosDesk::forgetAll);
    window->setRecordings([this] { return recordingsOf(m_means.library.history()); });
    const auto showHasRecordings = [this] {
        m_window->setHasRecordings(!m_means.library.history().entries().empty());
    };
    connect(&m_means.library, &LibraryController::historyGrown, window, showHasRecordings);
    connect(&m_means.library, &LibraryController::historyShrunk, window, showHasRecordings);
    showHasRecordings();
}

void MacrosDesk::show() {
    constexpr double opaque = 1;
    m_means.stage.present(builtWindow(), opaque);
}

void MacrosDesk::choose(const std::string& path) {
    builtWindow().choose(path);
    if (m_window->chosen() == path) return;
    m_awaited = path;
    m_namesAwaited = false;
}

// What follows the folder

void MacrosDesk::libraryChanged(const LibraryChanges& changes) {
    followRenames(changes.renamed);
    if (!m_window) return;
    followGone(changes.gone);
    m_showing.start();
    std::vector<std::string> others = changes.changed;
    for (const FolderChanges::Rename& rename : changes.renamed) others.push_back(rename.to);
    if (std::binary_search(changes.settings.begin(), changes.settings.end(), m_window->chosen()))
        showSettings();
    for (const std::string& path : others) {
        m_window->list().forgetContent(path);
        if (path == m_window->chosen()) m_reader.readFirst(path, m_library.fileOf(path));
    }
    // It was gone while its text was not saved.
    if (std::binary_search(changes.appeared.begin(), changes.appeared.end(), m_window->chosen()))
        m_reader.readFirst(m_window->chosen(), m_library.fileOf(m_window->chosen()));
    if (changes.isFirst || !changes.appeared.empty() || !others.empty()) readContents();
    if (changes.hasOtherFaults) tellFaults();
}

void MacrosDesk::followRenames(const std::vector<FolderChanges::Rename>& renamed) {
    if (renamed.empty()) return;
    loadUnsaved();
    m_unsaved.rename(renamed);
    if (!m_window) return;
    for (const FolderChanges::Rename& rename : renamed) m_window->list().setChanged(rename.from, false);
    const std::string chosen = m_window->chosen();
    const auto isIts = [&chosen](const FolderChanges::Rename& rename) { return rename.from == chosen; };
    const auto rename = std::find_if(renamed.begin(), renamed.end(), isIts);
    if (rename == renamed.end()) return;
    m_window->noteRenamed(rename->to);
    showSettings();
    // What is being read has another name now.
    if (m_opening == rename->from) read(rename->to);
}

void MacrosDesk::followGone(const std::vector<std::string>& gone) {
    const std::string& chosen = m_window->chosen();
    if (!std::binary_search(gone.begin(), gone.end(), chosen)) return;
    if (m_unsaved.contains(chosen)) {
        m_window->warn(goneText());
    } else {
        m_window->choose({});
        m_window->tell(tr("Another program has deleted or moved the macro."));
    }
}

void MacrosDesk::showItems() {
    std::vector<MacroListItem> items = libraryItems(m_library, m_means.library.hotKeys(), m_unsaved.all());
    m_window->setReading(!m_library.isRead());
    if (items != m_window->list().items()) m_window->setItems(std::move(items));
    for (const auto& [path, text] : m_unsaved.all()) m_window->list().setChanged(path, true);
    if (m_awaited.empty() || !m_window->list().indexOf(m_awaited).isValid()) return;
    const std::string path = std::exchange(m_awaited, {});
    if (std::exchange(m_namesAwaited, false)) {
        m_window->beginRename(path);
    } else {
        m_window->choose(path);
    }
}

void MacrosDesk::showSettings() {
    const std::string& path = m_window->chosen();
    const MacroSettings settings = m_library.settings(path);
    m_window->settings().showSettings(settings.hotKey, settings.play);
    m_window->settings().setNotice(macroHotKeyNotice(m_means.library.hotKeys().state(path)));
}

void MacrosDesk::readContents() {
    m_reader.forgetLater();
    for (const LibraryEntry& entry : m_library.entries()) {
        if (!m_window->list().hasContent(entry.path))
            m_reader.readLater(entry.path, m_library.fileOf(entry.path));
    }
}

void MacrosDesk::takeContent(const std::string& path, const Result<std::string>& text) {
    m_window->list().setContent(path, text ? contentOf(text.value(), m_means.layout) : std::string());
}

void MacrosDesk::takeText(const std::string& path, const Result<std::string>& text) {
    takeContent(path, text);
    if (path != m_window->chosen()) return;
    if (path == m_opening) {
        showText(path, text);
    } else {
        followText(path, text);
    }
}

void MacrosDesk::tellFaults() {
    if (!m_library.faults().empty()) m_window->warn(shown(m_library.faults().front()));
}

// The text of the chosen macro

void MacrosDesk::openMacro(const std::string& path) {
    showSettings();
    if (path.empty()) {
        m_opening.clear();
        m_patience.stop();
        m_window->showMacro({}, {});
        return;
    }
    m_patience.start();
    read(path);
}

void MacrosDesk::read(const std::string& path) {
    m_opening = path;
    m_reader.readFirst(path, m_library.fileOf(path));
    m_reader.await(path, glance);
}

void MacrosDesk::showText(const std::string& path, const Result<std::string>& text) {
    m_opening.clear();
    // It may have been told.
    if (!m_patience.isActive()) m_window->tell({});
    m_patience.stop();
    const Draft* const unsaved = m_unsaved.find(path);
    if (!text && unsaved == nullptr) return m_window->showFault(shown(text.error()));
    m_saved = text ? text.value() : std::string();
    m_window->showMacro(m_saved, unsaved == nullptr ? m_saved : unsaved->text);
    if (!text) {
        m_window->warn(FileMoves::isThere(m_library.fileOf(path)) ? shown(text.error()) : goneText());
    } else if (unsaved != nullptr && !unsaved->base.empty() && !isMadeFrom(*unsaved, m_saved)) {
        m_window->warn(replacedText());
    }
}

/// Somebody else has changed the file, or put it back.
void MacrosDesk::followText(const std::string& path, const Result<std::string>& text) {
    const Draft* const unsaved = m_unsaved.find(path);
    if (!text) {
        if (unsaved == nullptr && !FileMoves::isThere(m_library.fileOf(path))) followGone({path});
    } else if (unsaved == nullptr) {
        if (text.value() != m_saved) showText(path, text);
    } else if (isMadeFrom(*unsaved, text.value())) {
        m_window->endWarning({goneText(), replacedText()});
    } else {
        m_window->warn(replacedText());
    }
}

void MacrosDesk::noteEdit() {
    const std::string& path = m_window->chosen();
    if (path.empty()) return;
    const bool isChanged = m_window->editor().isChanged();
    if (isChanged) {
        m_unsaved.set(path, m_window->editor().text(), m_saved);
    } else if (m_unsaved.take(path)) {
        // Somebody else may have changed the file meanwhile.
        m_reader.readFirst(path, m_library.fileOf(path));
    }
    m_window->list().setChanged(path, isChanged);
}

/// Of an earlier run.
void MacrosDesk::loadUnsaved() {
    if (!std::exchange(m_hasLoadedUnsaved, true)) m_unsaved.load();
}

void MacrosDesk::tellOfUnsaved() {
    if (m_unsaved.all().empty()) return;
    QStringList names;
    for (const auto& [path, text] : m_unsaved.all()) names.append(macroName(path));
    m_window->tell(tr("What was not saved is there again: %1.").arg(names.join(tr(", "))));
}

// What the user asks for

void MacrosDesk::setHotKey(KeyCombo hotKey) {
    MacroSettings settings = m_library.settings(m_window->chosen());
    settings.hotKey = hotKey;
    m_library.setSettings(m_window->chosen(), settings);
}

void MacrosDesk::setPlay(const PlayOptions& play) {
    MacroSettings settings = m_library.settings(m_window->chosen());
    settings.play = play;
    m_library.setSettings(m_window->chosen(), settings);
}

/// Whoever presses a combination to give it to a macro does not want what it does now.
void MacrosDesk::holdHotKeys(bool holds) {
    if (holds) m_hotKeysWereOn = engineState().hotKeysEnabled;
    engineState().hotKeysEnabled = !holds && m_hotKeysWereOn;
}

void MacrosDesk::keep(int macroId) { makeMacro(MacroManager::macro(macroId)->script()); }

void MacrosDesk::forget(int macroId) {
    const Result<> forgotten = m_means.library.history().forget(macroId);
    if (!forgotten) return m_window->warn(shown(forgotten.error()));
    m_window->tell(tr("The recording is forgotten.") + remainder(m_means.library.history()));
}

void MacrosDesk::forgetAll() {
    const Result<> forgotten = m_means.library.history().forgetAll();
    if (!forgotten) return m_window->warn(shown(forgotten.error()));
    m_window->tell(tr("All recordings are forgotten.") + remainder(m_means.library.history()));
}

void MacrosDesk::save() {
    const std::string path = m_window->chosen();
    const std::string text = m_window->editor().text();
    // Its folder may have gone with it. That it cannot be made shows when the file is written.
    m_means.files.prepareFolder();
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(m_library.fileOf(path)).parent_path(), ignored);
    const Result<> written = m_means.files.write(m_library.fileOf(path), text);
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
    // Whoever has asked for it here goes on here.
    show();
    if (purpose == Purpose::newMacro) return makeMacro(macro.script());
    const auto lines = linesOf(macro.script());
    if (lines) m_window->editor().keys().insertLines(*lines);
}

void MacrosDesk::makeMacro(const std::string& script) {
    const std::string first =
        m_means.files.prepareFolder() + "/" + tr("New Macro").toStdString() + ".keyrill";
    const std::string file = FileMoves::isThere(first) ? FileMoves::freeName(first) : first;
    const Result<> written = m_means.files.write(file, script);
    if (!written) return m_window->warn(shown(written.error()));
    await(file, true);
}

void MacrosDesk::recordingEnded() {
    if (std::exchange(m_purpose, Purpose::none) != Purpose::none) show();
}

/// Nobody waits for a count after which nothing can happen.
void MacrosDesk::beginPlay() {
    for (const ScriptProblem& problem : problemsOf(m_window->editor().text())) {
        if (!problem.isError) continue;
        //: of a script; what is wrong
        return m_window->warn(
            tr("The macro cannot be played. Line %1: %2")
                .arg(QLocale().toString(problem.line), QString::fromStdString(problem.text)));
    }
    m_window->countDown();
}

void MacrosDesk::play() {
    if (engineState().recording || !m_means.gate.isOpen()) return;
    const std::string script = m_window->editor().text();
    // The window goes last, so that the focus passes from it to the one before.
    m_means.stage.hide(m_window.get());
    m_means.stage.fadeOut(*m_window);
    m_means.stage.awaitFocusElsewhere(m_window.get());
    playScript(script, m_library.settings(m_window->chosen()).play);
    m_window->setWindowOpacity(1);
    m_window->show();
    m_means.stage.unhide();
}

void MacrosDesk::duplicate(const std::string& path) {
    const std::string file = m_library.fileOf(path);
    const std::string copy = FileMoves::freeName(file);
    const Result<> copied = FileMoves::copy(file, copy);
    if (!copied) return m_window->warn(shown(copied.error()));
    await(copy, true);
}

void MacrosDesk::rename(const std::string& path, const QString& name) {
    const std::string file = m_library.fileOf(path);
    const Result<std::string> wanted = FileMoves::named(file, name);
    if (!wanted) return m_window->warn(shown(wanted.error()));
    const Result<> renamed = FileMoves::rename(file, wanted.value());
    if (!renamed) return m_window->warn(shown(renamed.error()));
    // Of a name before that was refused.
    m_window->endWarning();
    // Before the library tells so, for what is typed meanwhile.
    followRenames({{path, pathOf(wanted.value())}});
}

void MacrosDesk::remove(const std::string& path) {
    std::optional<TrashedFile> trashed;
    // Of some there is nothing but what is not saved.
    if (FileMoves::isThere(m_library.fileOf(path))) {
        auto moved = FileMoves::trash(m_library.fileOf(path));
        if (!moved) return m_window->warn(shown(moved.error()));
        trashed = std::move(moved).value();
    }
    m_deleted.push_back({path, trashed, m_unsaved.take(path), m_library.settings(path)});
    // Whoever's file gets the name next is to have no hot key by that.
    m_library.setSettings(path, {});
    m_window->list().setChanged(path, false);
    m_window->chooseNeighbour();
    m_window->tell(trashed ? tr("The macro is in the trash.") : tr("The macro is deleted."), tr("Undo"));
    if (!trashed) m_showing.start();
}

void MacrosDesk::restore() {
    if (m_deleted.empty()) return;
    const auto& file = m_deleted.back().file;
    const Result<> restored = file ? FileMoves::restore(*file) : Result<>();
    // What is in the way may go.
    if (!restored) return m_window->warn(shown(restored.error()), tr("Undo"));
    Deleted deleted = std::move(m_deleted.back());
    m_deleted.pop_back();
    m_window->tell({});
    await(m_library.fileOf(deleted.path), false);
    m_library.setSettings(deleted.path, deleted.settings);
    if (deleted.draft) m_unsaved.putBack(deleted.path, *std::move(deleted.draft));
}

void MacrosDesk::await(const std::string& file, bool isToBeNamed) {
    m_awaited = pathOf(file);
    m_namesAwaited = isToBeNamed;
    // The library may have told of it already.
    m_showing.start();
}

std::string MacrosDesk::pathOf(const std::string& file) const {
    return file.substr(m_library.folder().size() + 1);
}
