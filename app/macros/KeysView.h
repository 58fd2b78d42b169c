// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QWidget>
#include <string>

#include "app/macros/StepsModel.h"

class KeyboardLayout;
class NoticeLine;
class QBoxLayout;
class QLabel;
class QLayout;
class QListView;

/// A macro as the steps that it takes. Those of a recording can be changed, moved, removed, and keys be
/// recorded among them; each edit is asked for as a splice of the script. Of any other script it shows what
/// it would press.
class KeysView : public QWidget {
    Q_OBJECT

  public:
    /// The layout outlives the view.
    explicit KeysView(const KeyboardLayout& layout, QWidget* parent = nullptr);

    /// The steps that were selected stay so as far as they are there.
    void showScript(const std::string& script);
    const StepsModel& model() const { return m_model; }
    /// Puts lines of a recording behind the step that is current, or at the end.
    void insertLines(const std::string& lines);

  signals:
    void editWanted(const steps::Splice& splice);
    /// Keys are to be recorded, for insertLines().
    void recordWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The lines that the selected steps stand for, of the first to the last; `count` is 0 without any.
    struct Range {
        std::size_t first = 0;
        std::size_t count = 0;
        int firstRow = 0;
        int lastRow = -1;
    };

    QAction* addAction(QBoxLayout& group, const QString& title, const QString& hint, const QKeySequence& keys,
                       void (KeysView::*operation)());
    /// The commands, in lines.
    QLayout* makeActions();
    void updateActions();
    Range selected() const;
    void select(std::size_t firstLine, std::size_t count);
    void edit(const steps::Splice& splice, std::size_t firstLine, std::size_t count);
    /// What stands in the place of so many lines is selected.
    void replace(const steps::Splice& splice, std::size_t firstLine, std::size_t count);
    void refuse(const Error& why);

    void remove();
    void moveUp();
    void moveDown();
    void duplicate();
    void change();
    void insertPause();
    void convertToText();
    void convertToKeys();

    const KeyboardLayout& m_layout;
    StepsModel m_model;
    QListView* m_list;
    QLabel* m_explanation;
    NoticeLine* m_notice;
    QAction* m_remove = nullptr;
    QAction* m_moveUp = nullptr;
    QAction* m_moveDown = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_change = nullptr;
    QAction* m_pause = nullptr;
    QAction* m_record = nullptr;
    QAction* m_toText = nullptr;
    QAction* m_toKeys = nullptr;
};
