// SPDX-License-Identifier: MIT
#pragma once

#include "app/widgets/Panel.h"

class QLayout;
class QPushButton;

/// Name, version, licence, the libraries with theirs, and where to read more.
class AboutPanel : public Panel {
    Q_OBJECT

  public:
    AboutPanel();

    // Each is to show the page that it names.
    QPushButton* documentationButton() const { return m_documentationButton; }
    QPushButton* productPageButton() const { return m_productPageButton; }
    QPushButton* makersWebsiteButton() const { return m_makersWebsiteButton; }

  private:
    QLayout* makeGreeting();
    QLayout* makeLibraries();
    QLayout* makeButtons();

    QPushButton* m_documentationButton;
    QPushButton* m_productPageButton;
    QPushButton* m_makersWebsiteButton;
};
