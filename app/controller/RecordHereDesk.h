// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>
#include <string>

class EventMonitor;
class HotKeys;
class RecordHerePanel;
class ShortcutModel;
class Stage;
struct Error;

/// A recording of what is typed into a window of ours, where the keys of other programs may not be seen. The
/// window is built when first needed and kept; closing it ends the recording.
class RecordHereDesk : public QObject {
    Q_OBJECT

  public:
    /// All outlive the desk. `stop` is the combination that ends recordings.
    RecordHereDesk(EventMonitor& monitor, const HotKeys& hotKeys, const ShortcutModel& stop, Stage& stage);
    ~RecordHereDesk() override;

    /// The recording, which has seen no key, goes on in the window; nothing if there is none. `why` it has
    /// seen none.
    void begin(const Error& why);
    /// The recording is over.
    void end();
    void setMacroString(const std::string& text);

    /// Null until first needed.
    RecordHerePanel* panel() const { return m_panel.get(); }

  signals:
    /// The user would like to know what can be done.
    void helpWanted();

  private:
    RecordHerePanel& builtPanel();
    void tellHowToStop(RecordHerePanel& panel) const;

    EventMonitor& m_monitor;
    const HotKeys& m_hotKeys;
    const ShortcutModel& m_stop;
    Stage& m_stage;
    std::unique_ptr<RecordHerePanel> m_panel;
};
