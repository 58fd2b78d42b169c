// SPDX-License-Identifier: MIT
#include "app/languages/Catalogues.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <map>
#include <string>

#include "app/macros/ScriptCheck.h"
#include "app/macros/StepText.h"
#include "app/macros/StepsModel.h"
#include "app/program/CommandLine.h"
#include "platform/KeyCodes.h"
#include "platform/Sentence.h"
#include "platform/fake/FakeKeyboardLayout.h"
#include "platform/sessions/Sessions.h"

namespace {

const QStringList offered = {"ar", "de", "fr"};

QString chosen(const QStringList& wanted) { return chosenLanguage(wanted, offered); }

/// Puts the environment back.
class Environment {
  public:
    explicit Environment(std::map<std::string, QByteArray> values) {
        for (const char* const name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            m_before[name] = qgetenv(name);
            set(name, values[name]);
        }
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() {
        for (const auto& [name, value] : m_before) set(name, value);
    }

  private:
    static void set(const std::string& name, const QByteArray& value) {
        if (value.isEmpty()) {
            qunsetenv(name.c_str());
        } else {
            qputenv(name.c_str(), value);
        }
    }
    std::map<std::string, QByteArray> m_before;
};

QString chosenByDesktop() { return chosenLanguage(languagesOfDesktop(), offered); }

QString quit() { return QCoreApplication::translate("StatusMenu", "Quit"); }

steps::Step pressedTimes(std::size_t times) {
    return {.kind = steps::StepKind::key, .repeats = times, .keyCode = keycode::none, .text = "x"};
}

TEST(CataloguesTest, theFirstWantedLanguageThatThereIsIsChosen) {
    EXPECT_EQ(chosen({"de"}), "de");
    EXPECT_EQ(chosen({"eo", "fr", "de"}), "fr");
    EXPECT_EQ(chosen({"eo"}), "");
    EXPECT_EQ(chosen({}), "");
}

TEST(CataloguesTest, aRegionDoesNotMatter) {
    for (const char* name : {"de-AT", "de_CH.UTF-8", "de-Latn-DE", "DE", "de_DE@euro"}) {
        EXPECT_EQ(chosen({name}), "de") << name;
    }
    EXPECT_EQ(chosen({"deu"}), "");
}

TEST(CataloguesTest, englishIsTheLanguageOfTheSources) {
    EXPECT_EQ(chosen({"en_GB", "de"}), "");
    EXPECT_EQ(chosen({"C", "de"}), "");
    EXPECT_EQ(chosen({"POSIX"}), "");
}

TEST(CataloguesTest, theDesktopSaysWhichLanguageByItsEnvironment) {
    EXPECT_EQ((Environment{{{"LANG", "de_DE.UTF-8"}}}, chosenByDesktop()), "de");
    EXPECT_EQ((Environment{{{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}}, chosenByDesktop()),
              "fr");
    EXPECT_EQ((Environment{{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "ar_EG.UTF-8"}}}, chosenByDesktop()), "ar");
    EXPECT_EQ((Environment{{{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "eo:fr:ar"}}}, chosenByDesktop()), "fr");
    EXPECT_EQ((Environment{{{"LC_ALL", "C"}, {"LANGUAGE", "de"}}}, chosenByDesktop()), "");
    EXPECT_EQ((Environment{{{"LANGUAGE", "de"}}}, chosenByDesktop()), "");
}

TEST(CataloguesTest, theLanguagesAreInTheProgram) {
    EXPECT_EQ(offeredLanguages(), QStringList({"ar", "de", "es", "fr", "ja", "ru"}));
}

TEST(CataloguesTest, theWordsAreTranslatedWhileTheCataloguesLive) {
    {
        const Catalogues german({"de"});
        EXPECT_EQ(german.language(), "de");
        EXPECT_EQ(quit(), "Beenden");
    }
    EXPECT_EQ(quit(), "Quit");
    const Catalogues none({"en", "de"});
    EXPECT_EQ(none.language(), "");
    EXPECT_EQ(quit(), "Quit");
}

TEST(CataloguesTest, whatRoomsWithoutAToolkitSayIsTranslatedToo) {
    const auto unreadable = [] {
        return sentence("Files", "The file %1 cannot be read: %2").arg("/a").arg("%1").text();
    };
    {
        const Catalogues german({"de"});
        EXPECT_EQ(unreadable(), "Die Datei /a kann nicht gelesen werden: %1");
        const Catalogues none({"en"});
    }
    EXPECT_EQ(unreadable(), "The file /a cannot be read: %1");
}

TEST(CataloguesTest, whatIsWrongWithAScriptIsToldInTheLanguageOfTheDesktop) {
    const std::string source = "tell application \"System Events\"\nkey code\nend tell";
    const FakeKeyboardLayout layout;
    StepsModel steps(layout);
    const Catalogues german({"de"});
    const std::string message = "Erwartet wurde ein Ausdruck, gefunden wurde das Zeilenende.";
    EXPECT_EQ(problemsOf(source), (std::vector<ScriptProblem>{{2, 9, true, message}}));
    steps.showScript(source);
    EXPECT_EQ(steps.notice().toStdString(), "Zeile 2: " + message);
}

TEST(CataloguesTest, theToolkitsButtonsAreTranslatedToo) {
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    EXPECT_EQ((Catalogues({"de"}), cancel()), "Abbrechen");
    EXPECT_EQ(cancel(), "Cancel");
}

TEST(CataloguesTest, arabicIsLaidOutFromRightToLeft) {
    {
        const Catalogues arabic({"ar"});
        EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    }
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    const Catalogues german({"de"});
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(CataloguesTest, optionsStayAsTheyAreInAllLanguages) {
    for (const QString& language : offeredLanguages()) {
        const Catalogues catalogues({language});
        const std::string help = usage(sessionKinds());
        for (const char* word :
             {"--session=", "--action=", "--play", "--times=", "until-stopped", "--speed=", "--show",
              "--list", "--check", "--help", "--version", "0.25", "record, stop, "})
            EXPECT_NE(help.find(word), std::string::npos) << language.toStdString() << ": " << word;
    }
}

TEST(CataloguesTest, whatIsCountedHasItsPlural) {
    EXPECT_EQ(stepSpeech(pressedTimes(5)), "Press x 5 times");
    const Catalogues german({"de"});
    EXPECT_EQ(stepSpeech(pressedTimes(5)), "x 5-mal drücken");
}

}  // namespace
