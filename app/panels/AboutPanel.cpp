// SPDX-License-Identifier: MIT
#include "app/panels/AboutPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "app/widgets/PanelText.h"
#include "platform/Features.h"

namespace {

struct Library {
    std::string_view name;
    /// To be translated in the panel's context.
    const char* licence = nullptr;
};

/// Not in builds without the update check.
constexpr std::string_view updateLibrary = "libcurl";

/// What the program is linked with, and under which terms.
constexpr Library libraries[] = {{"Qt 6", "LGPL 3"},
                                 {"GLib", QT_TRANSLATE_NOOP("AboutPanel", "LGPL 2.1 or later")},
                                 {"libxcb, libxkbcommon", "MIT"},
                                 {updateLibrary, QT_TRANSLATE_NOOP("AboutPanel", "curl licence")},
                                 {"Boost", "Boost Software License 1.0"}};

QString textOf(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

AboutPanel::AboutPanel()
    : Panel(tr("About Keyrill")),
      m_documentationButton(new QPushButton(tr("&Documentation"))),
      m_productPageButton(new QPushButton(tr("&Product Page"))),
      m_makersWebsiteButton(new QPushButton(tr("&Maker's Website"))) {
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeGreeting());
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeHeading(tr("Built with")));
    layout->addLayout(makeLibraries());
    layout->addSpacing(2 * layout->spacing());
    layout->addLayout(makeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* AboutPanel::makeGreeting() {
    auto* words = new QVBoxLayout;
    words->addWidget(makeTitle(QStringLiteral("Keyrill")));
    words->addWidget(makeParagraph(tr("Version %1").arg(QStringLiteral(KEYRILL_VERSION))));
    words->addWidget(makeParagraph(tr("Records the keys you press and presses them again.")));
    words->addSpacing(words->spacing());
    words->addWidget(
        makeParagraph(tr("Copyright © 2026 the Keyrill authors. Free software under the MIT licence, "
                         "without any warranty.")));
    auto* layout = new QHBoxLayout;
    layout->addWidget(makeProgramIcon(), 0, Qt::AlignTop);
    layout->addSpacing(layout->spacing());
    layout->addLayout(words, 1);
    return layout;
}

QLayout* AboutPanel::makeLibraries() {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    constexpr int columnGap = 24;
    grid->setHorizontalSpacing(columnGap);
    for (const Library& library : libraries) {
        if (!features::updateCheck && library.name == updateLibrary) continue;
        const int row = grid->rowCount();
        grid->addWidget(makeLine(textOf(library.name)), row, 0);
        grid->addWidget(makeLine(tr(library.licence)), row, 1);
    }
    return grid;
}

QLayout* AboutPanel::makeButtons() {
    auto* closeButton = new QPushButton(tr("&Close"));
    closeButton->setDefault(true);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);
    auto* layout = new QHBoxLayout;
    for (QPushButton* page : {m_documentationButton, m_productPageButton, m_makersWebsiteButton})
        layout->addWidget(page);
    layout->addStretch();
    layout->addWidget(closeButton);
    closeButton->setFocus();
    return layout;
}
