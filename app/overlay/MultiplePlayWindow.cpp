// SPDX-License-Identifier: MIT
#include "app/overlay/MultiplePlayWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include "app/icons/DataFolder.h"
#include "app/icons/ProgramIcon.h"
#include "app/overlay/MultiplePlayView.h"
#include "app/overlay/OverlayPanel.h"

namespace {
constexpr int margin = 14;
constexpr int fieldWidth = 90;
}  // namespace

MultiplePlayWindow::MultiplePlayWindow() : MultiplePlayWindow(dataFolder()) {}

MultiplePlayWindow::MultiplePlayWindow(const QString& folder)
    : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_timesText(new QLineEdit(QStringLiteral("1"))),
      m_playButton(new QPushButton) {
    // The window is activated by other means, with the permission of the hot key that opened it.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(tr("Play Multiple Times"));
    setWindowIcon(programIcon());

    auto* view = new MultiplePlayView(folder, this);
    auto* windowLayout = new QHBoxLayout(this);
    windowLayout->setContentsMargins(0, 0, 0, 0);
    windowLayout->addWidget(view);
    addControls(*view);

    connect(m_timesText, &QLineEdit::returnPressed, this, &MultiplePlayWindow::confirm);
    connect(m_playButton, &QPushButton::clicked, this, &MultiplePlayWindow::confirm);
    setPlays(true);
}

void MultiplePlayWindow::addControls(QWidget& view) {
    auto* label = new QLabel(tr("&Times to play:"));
    label->setBuddy(m_timesText);
    // The picture behind is dark on every desktop, and may be missing.
    QPalette onDark = label->palette();
    onDark.setColor(QPalette::WindowText, Qt::white);
    onDark.setColor(QPalette::Window, overlayGround);
    label->setPalette(onDark);
    label->setAutoFillBackground(true);
    m_timesText->setFixedWidth(fieldWidth);
    m_timesText->setAccessibleName(tr("Times to play"));
    auto* layout = new QHBoxLayout(&view);
    layout->setContentsMargins(0, margin, 0, margin);
    layout->addSpacing(MultiplePlayView::markWidth);
    layout->addWidget(label);
    layout->addWidget(m_timesText);
    layout->addStretch();
    layout->addWidget(m_playButton);
    layout->addSpacing(margin);
}

QPoint MultiplePlayWindow::placeOn(const QSize& screen) const {
    return {(screen.width() - width()) / 2, (screen.height() - height()) / 3};
}

void MultiplePlayWindow::place() {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    move(screen.topLeft() + placeOn(screen.size()));
}

void MultiplePlayWindow::setPlays(bool plays) {
    m_plays = plays;
    m_playButton->setEnabled(plays);
    m_playButton->setText(plays ? tr("&Play") : tr("No macro yet"));
    resize(minimumSizeHint().expandedTo(MultiplePlayView::pictureSize));
}

void MultiplePlayWindow::focusTimesText() {
    m_timesText->setFocus();
    m_timesText->selectAll();
}

QString MultiplePlayWindow::timesText() const { return m_timesText->text(); }

void MultiplePlayWindow::confirm() {
    if (m_plays) emit confirmed();
}

void MultiplePlayWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit dismissed();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void MultiplePlayWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit dismissed();
}

void MultiplePlayWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    shapeAsOverlayPanel(*this);
}
