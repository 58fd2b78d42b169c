// SPDX-License-Identifier: MIT
//
// Whether the texts of each language have room in the windows that show them.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTranslator>
#include <algorithm>
#include <functional>
#include <map>
#include <memory>

#include "app/dialogs/AlertDialog.h"
#include "app/dialogs/AlertTexts.h"
#include "app/languages/Catalogues.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/macros/MacrosWindow.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/RecordHerePanel.h"
#include "app/panels/StatusPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/shortcuts/PreferencesModel.h"
#include "app/tray/ControlWindow.h"
#include "app/tray/StatusMenu.h"
#include "engine/EngineTest.h"
#include "platform/Services.h"

namespace {

constexpr int roomOfSmallScreens = 640;
constexpr double longerThanEnglish = 1.3;
const QString pseudo = QStringLiteral("pseudo");

/// The words of a language while it lives; of the pseudo-language too.
class Speaking {
  public:
    explicit Speaking(const QString& language) : m_catalogues({language}) {
        if (language != pseudo) return;
        if (!m_pseudo.load(QStringLiteral(KEYRILL_PSEUDO_LANGUAGE)))
            throw std::runtime_error("no pseudo-language");
        QCoreApplication::installTranslator(&m_pseudo);
    }

  private:
    Catalogues m_catalogues;
    QTranslator m_pseudo;
};

class FitTest : public EngineTest {
  protected:
    using Make = std::function<std::unique_ptr<QWidget>()>;

    std::unique_ptr<QWidget> macros() const {
        auto window = std::make_unique<MacrosWindow>(services().keyboardLayout);
        window->setItems({{"Greeting", QStringLiteral("Greeting"), {}, QStringLiteral("Ctrl+Super+G")}});
        window->choose("Greeting");
        window->showMacro("", "");
        return window;
    }

    /// Each window of the program, by a name for the messages of this test.
    const std::map<std::string, Make> windows = {
        {"preferences", [this] { return std::make_unique<PreferencesPanel>(model); }},
        {"welcome", [this] { return std::make_unique<WelcomePanel>(model); }},
        {"status",
         [] {
             auto panel = std::make_unique<StatusPanel>();
             panel->setFault();
             return panel;
         }},
        {"about", [] { return std::make_unique<AboutPanel>(); }},
        {"record here",
         [] {
             auto panel = std::make_unique<RecordHerePanel>();
             panel->setStopTrigger({});
             return panel;
         }},
        {"control", [this] { return std::make_unique<ControlWindow>(menu); }},
        {"prompt", [] { return std::make_unique<MultiplePlayWindow>(QString()); }},
        {"macros", [this] { return macros(); }},
        {"alert",
         [] {
             return std::make_unique<AlertDialog>(alerts::noAccess({"Why not.", "What to do."}));
         }},
        {"update", [] { return std::make_unique<AlertDialog>(alerts::updateAvailable()); }},
    };

    PreferencesModel model;
    StatusMenu menu;
};

void layOut(QWidget& window) {
    window.show();
    // Labels with several lines get their height after their width.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// What text a widget has less room for than that takes; empty if all fits.
QString clipped(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const bool fits = label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                            : label->width() >= label->sizeHint().width();
        return fits ? QString() : label->text();
    }
    const bool hasText = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                         qobject_cast<const QComboBox*>(&widget) != nullptr ||
                         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr;
    if (!hasText || widget.width() >= widget.sizeHint().width()) return {};
    return widget.property("text").toString() + QLatin1String(widget.metaObject()->className());
}

QStringList clippedIn(const QWidget& window) {
    QStringList texts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        if (const QString text = clipped(*widget); !text.isEmpty()) texts.append(text);
    }
    return texts;
}

int widthOf(const std::function<std::unique_ptr<QWidget>()>& make) {
    const std::unique_ptr<QWidget> window = make();
    layOut(*window);
    return window->width();
}

TEST_F(FitTest, aTextWithoutRoomIsFound) {
    QWidget window;
    auto* label = new QLabel(QStringLiteral("A text that is wide"), &window);
    label->setGeometry(0, 0, 20, 20);
    window.show();
    EXPECT_EQ(clippedIn(window), QStringList("A text that is wide"));
    label->setWordWrap(true);
    EXPECT_EQ(clippedIn(window), QStringList("A text that is wide"));
    label->resize(label->sizeHint());
    EXPECT_EQ(clippedIn(window), QStringList());
}

TEST_F(FitTest, thePseudoLanguageIsLongerThanTheTextsItStandsFor) {
    const Speaking speaking(pseudo);
    EXPECT_EQ(QCoreApplication::translate("StatusMenu", "Play Multiple Times..."),
              "[Þļàý Mûļťîþļé Ťîméš ~~~~~ ~~]...");
}

TEST_F(FitTest, everyTextHasRoomAndNoWindowIsTooWide) {
    std::map<std::string, int> widest;
    for (const auto& [name, make] : windows) {
        widest[name] = std::max(roomOfSmallScreens, static_cast<int>(widthOf(make) * longerThanEnglish));
    }
    QStringList languages = offeredLanguages();
    languages << QStringLiteral("en") << pseudo;
    for (const QString& language : languages) {
        const Speaking speaking(language);
        for (const auto& [name, make] : windows) {
            const std::unique_ptr<QWidget> window = make();
            layOut(*window);
            EXPECT_EQ(clippedIn(*window).join(QStringLiteral(" | ")).toStdString(), "")
                << name << " in " << language.toStdString();
            EXPECT_LE(window->width(), widest[name]) << name << " in " << language.toStdString();
        }
    }
}

}  // namespace
