// SPDX-License-Identifier: MIT
#include "app/widgets/NoticeLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <algorithm>

#include "app/widgets/PanelText.h"

NoticeLine::NoticeLine(QWidget* parent) : QWidget(parent), m_text(makeLine({})) {
    auto* sign = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    sign->setAccessibleName(tr("Warning"));
    m_text->setWordWrap(true);
    // The first line is beside the sign also where there is more height than the lines need.
    m_text->setAlignment((m_text->alignment() & ~Qt::AlignVertical_Mask) | Qt::AlignTop);
    m_text->setContentsMargins(0, std::max(0, (size - m_text->fontMetrics().height()) / 2), 0, 0);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sign, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    hide();
}

void NoticeLine::setNotice(const QString& notice) {
    m_text->setText(notice);
    setVisible(!notice.isEmpty());
}

QString NoticeLine::notice() const { return m_text->text(); }
