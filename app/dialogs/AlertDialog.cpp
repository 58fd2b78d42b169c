// SPDX-License-Identifier: MIT
#include "app/dialogs/AlertDialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "app/icons/ProgramIcon.h"
#include "app/widgets/PanelText.h"

namespace {

/// As a result; those of the toolkit are others.
constexpr int chosenOther = 2;

QStyle::StandardPixmap signOf(AlertText::Kind kind) {
    switch (kind) {
        case AlertText::Kind::stop:
        case AlertText::Kind::critical:
            return QStyle::SP_MessageBoxCritical;
        case AlertText::Kind::warning:
            return QStyle::SP_MessageBoxWarning;
        case AlertText::Kind::informational:
            break;
    }
    return QStyle::SP_MessageBoxInformation;
}

/// A single "&" would mark a mnemonic.
QString literal(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

}  // namespace

AlertDialog::AlertDialog(const AlertText& text, QWidget* parent) : QDialog(parent) {
    setWindowTitle(text.title);
    setWindowIcon(programIcon());
    auto* sign = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    sign->setPixmap(style()->standardIcon(signOf(text.kind)).pixmap(size));

    auto* words = new QVBoxLayout;
    words->addWidget(makeHeading(text.title));
    if (!text.message.isEmpty()) words->addWidget(makeParagraph(text.message));
    auto* upper = new QHBoxLayout;
    upper->addWidget(sign, 0, Qt::AlignTop);
    upper->addSpacing(upper->spacing());
    upper->addLayout(words, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeButtons(text));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    // Else the leftmost gets it, which is another one in GNOME's order, and Return means whichever has it.
    m_default->setFocus();
}

QWidget* AlertDialog::makeButtons(const AlertText& text) {
    auto* buttons = new QDialogButtonBox;
    m_default = buttons->addButton(literal(text.defaultButton), QDialogButtonBox::AcceptRole);
    m_default->setDefault(true);
    if (!text.alternateButton.isEmpty())
        buttons->addButton(literal(text.alternateButton), QDialogButtonBox::RejectRole);
    if (!text.otherButton.isEmpty()) {
        auto* other = buttons->addButton(literal(text.otherButton), QDialogButtonBox::DestructiveRole);
        connect(other, &QPushButton::clicked, this, [this] { done(chosenOther); });
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

AlertAnswer AlertDialog::answer() const {
    if (result() == chosenOther) return AlertAnswer::otherButton;
    return result() == Accepted ? AlertAnswer::defaultButton : AlertAnswer::alternateButton;
}
