// SPDX-License-Identifier: MIT
#include "app/panels/StatusPanel.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "app/widgets/PanelText.h"

namespace {

/// What the lines take of the screen's height at most.
constexpr double mostOfScreen = 0.6;

struct Sign {
    QStyle::StandardPixmap picture;
    QString words;
};

Sign signOf(Verdict verdict) {
    switch (verdict) {
        case Verdict::works:
            return {QStyle::SP_DialogApplyButton, StatusPanel::tr("Works")};
        case Verdict::fails:
            return {QStyle::SP_MessageBoxWarning, StatusPanel::tr("Does not work")};
        case Verdict::uncertain:
            break;
    }
    return {QStyle::SP_MessageBoxQuestion, StatusPanel::tr("Not known")};
}

QLabel* makePicture(const Sign& sign) {
    auto* picture = new QLabel;
    const QStyle& style = *picture->style();
    const int size = style.pixelMetric(QStyle::PM_SmallIconSize);
    picture->setPixmap(
        style.standardIcon(sign.picture).pixmap(QSize(size, size), picture->devicePixelRatioF()));
    picture->setAccessibleName(sign.words);
    return picture;
}

void addLine(QGridLayout& grid, const ReportLine& line) {
    const Sign sign = signOf(line.verdict);
    const QString text = QString::fromStdString(line.text);
    QLabel* const words = makeParagraph(text);
    words->setAccessibleName(StatusPanel::tr("%1: %2", "whether it works, and what").arg(sign.words, text));
    const int row = grid.rowCount();
    grid.addWidget(makePicture(sign), row, 0, Qt::AlignTop);
    grid.addWidget(words, row, 1);
    if (line.advice.empty()) return;
    QLabel* const advice = makeParagraph(QString::fromStdString(line.advice));
    advice->setIndent(advice->style()->pixelMetric(QStyle::PM_SmallIconSize));
    grid.addWidget(advice, row + 1, 1);
}

}  // namespace

StatusPanel::StatusPanel() : Panel(tr("What Works Here")), m_area(new QScrollArea) {
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setAccessibleName(windowTitle());
    auto* box = new QVBoxLayout(this);
    box->addWidget(m_area, 1);
    box->addLayout(makeButtons());
}

QLayout* StatusPanel::makeButtons() {
    m_copy = new QPushButton(tr("C&opy"));
    m_copy->setToolTip(tr("Copy all lines, for a mail or a forum"));
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(QString::fromStdString(reportText(m_report))); });
    auto* again = new QPushButton(tr("Check &Again"));
    connect(again, &QPushButton::clicked, this, &StatusPanel::checkWanted);
    auto* close = new QPushButton(tr("&Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_copy);
    buttons->addWidget(again);
    buttons->addStretch();
    buttons->addWidget(close);
    close->setFocus();
    return buttons;
}

void StatusPanel::setChecking() {
    if (m_report.empty())
        setLines({{.verdict = Verdict::uncertain, .text = tr("A moment...").toStdString()}});
    m_area->setEnabled(false);
}

void StatusPanel::setReport(const std::vector<ReportLine>& report) {
    m_report = report;
    setLines(report);
}

void StatusPanel::setFault() {
    m_report.clear();
    setLines({{.verdict = Verdict::uncertain,
               .text = tr("What works here could not be found out.").toStdString(),
               .advice = tr("\"keyrill --check\" in a terminal may say why.").toStdString()}});
}

void StatusPanel::setLines(const std::vector<ReportLine>& report) {
    auto* lines = new QWidget;
    auto* grid = new QGridLayout(lines);
    grid->setColumnStretch(1, 1);
    for (const ReportLine& line : report) addLine(*grid, line);
    grid->setRowStretch(grid->rowCount(), 1);
    m_area->setWidget(lines);
    m_area->setEnabled(true);
    m_copy->setEnabled(!m_report.empty());
    fit();
}

/// As high as the lines are, where the screen has that. Never smaller than the user has made it.
void StatusPanel::fit() {
    const QWidget& lines = *m_area->widget();
    const int width = lines.sizeHint().width();
    const int most = static_cast<int>(screen()->availableSize().height() * mostOfScreen);
    m_area->setMinimumWidth(width + m_area->verticalScrollBar()->sizeHint().width());
    m_area->setMinimumHeight(std::min(lines.heightForWidth(width), most));
    resize(size().expandedTo(sizeHint()));
}
