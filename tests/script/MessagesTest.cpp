// SPDX-License-Identifier: MIT
//
// What errors say: to people in their language, to scripts in English whatever is spoken.
#include <gtest/gtest.h>

#include <array>
#include <regex>

#include "languages/SpokenSentences.h"
#include "platform/Sentence.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "script/CaseFile.h"
#include "script/RecordingInjector.h"
#include "script/Traced.h"

namespace {

constexpr std::array<const char*, 6> languages{"ar", "de", "es", "fr", "ja", "ru"};

struct Row {
    std::string name;
    std::string source;
    int number;
    std::string english;
    std::array<std::string, languages.size()> shown;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

std::string inSystemEvents(const std::string& line) {
    return "tell application \"System Events\" to " + line;
}

class MessagesTest : public testing::TestWithParam<Row> {};

TEST_P(MessagesTest, isEnglishAtFirst) {
    const script::ScriptError error = traced(GetParam().source).error;
    EXPECT_EQ(error.number, GetParam().number);
    EXPECT_EQ(error.message.text(), GetParam().english);
}

TEST_P(MessagesTest, isShownInTheLanguageOfTheUserWithItsNumber) {
    for (std::size_t i = 0; i < languages.size(); ++i) {
        const SpokenSentences spoken({languages.at(i)});
        const script::ScriptError error = traced(GetParam().source).error;
        EXPECT_EQ(error.number, GetParam().number);
        EXPECT_EQ(error.message.text(), GetParam().shown.at(i));
    }
}

TEST_P(MessagesTest, isEnglishForScriptsInEveryLanguage) {
    for (const char* const language : languages) {
        const SpokenSentences spoken({language});
        EXPECT_EQ(traced(GetParam().source).error.message.english(), GetParam().english) << language;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Errors, MessagesTest,
    testing::Values(
        Row{"a text that is no number",
            R"("a" + 1)",
            -1700,
            "Can’t make \"a\" into type number.",
            {"لا يمكن تحويل \u2068\"a\"\u2069 إلى النوع \u2068number\u2069.",
             "\"a\" kann nicht in den Typ number umgewandelt werden.",
             "No se puede convertir \"a\" en el tipo number.",
             "Impossible de convertir \"a\" en type number.", "\"a\" を型 number に変換できません。",
             "Не удаётся преобразовать \"a\" в тип number."}},
        Row{"an item that a list does not have",
            "item 5 of {1, 2}",
            -1728,
            "Can’t get item 5 of {1, 2}.",
            {"لا يمكن الحصول على \u2068item 5 of {1, 2}\u2069.",
             "item 5 of {1, 2} kann nicht gelesen werden.", "No se puede obtener item 5 of {1, 2}.",
             "Impossible d’obtenir item 5 of {1, 2}.", "item 5 of {1, 2} を取得できません。",
             "Не удаётся получить item 5 of {1, 2}."}},
        Row{"a power that is no number",
            "(-8) ^ 0.5",
            -2702,
            "Can’t raise -8 to the power of 0.5: the result is no number.",
            {"لا يمكن رفع \u2068-8\u2069 إلى الأس \u20680.5\u2069: فالنتيجة ليست عددًا.",
             "-8 kann nicht mit 0.5 potenziert werden: Das Ergebnis ist keine Zahl.",
             "No se puede elevar -8 a la potencia 0.5: el resultado no es un número.",
             "Impossible d’élever -8 à la puissance 0.5\u00a0: le résultat n’est pas un nombre.",
             "-8 を 0.5 乗することはできません: 結果が数になりません。",
             "Нельзя возвести -8 в степень 0.5: результат не является числом."}},
        Row{"a word of the language that is missing",
            "set x\n",
            -2741,
            "Expected “to” but found end of line.",
            {"المتوقع \u2068«\u2068to\u2069»\u2069، والموجود \u2068نهاية السطر\u2069.",
             "Erwartet wurde „to“, gefunden wurde das Zeilenende.",
             "Se esperaba «to», pero se encontró el fin de la línea.",
             "Attendu\u00a0: «\u00a0to\u00a0»\u00a0; trouvé\u00a0: la fin de la ligne.",
             "「to」が来るべきところに、行末があります。", "Ожидалось: «to»; найдено: конец строки."}},
        Row{"several words that may stand there",
            "repeat with i 5\nend repeat",
            -2741,
            "Expected “from” or “in” but found number.",
            {"المتوقع \u2068\u2067«\u2068from\u2069»\u2069 أو \u2067«\u2068in\u2069»\u2069\u2069، والموجود "
             "\u2068عدد\u2069.",
             "Erwartet wurde „from“ oder „in“, gefunden wurde eine Zahl.",
             "Se esperaba «from» o «in», pero se encontró un número.",
             "Attendu\u00a0: «\u00a0from\u00a0» ou «\u00a0in\u00a0»\u00a0; trouvé\u00a0: un nombre.",
             "「from」または「in」が来るべきところに、数があります。",
             "Ожидалось: «from» или «in»; найдено: число."}},
        Row{"more than two words that may stand there",
            inSystemEvents("key 5"),
            -2741,
            "Expected “code”, “down” or “up” but found number.",
            {"المتوقع \u2068\u2067«\u2068code\u2069»، «\u2068down\u2069»\u2069 أو "
             "\u2067«\u2068up\u2069»\u2069\u2069، والموجود \u2068عدد\u2069.",
             "Erwartet wurde „code“, „down“ oder „up“, gefunden wurde eine Zahl.",
             "Se esperaba «code», «down» o «up», pero se encontró un número.",
             "Attendu\u00a0: «\u00a0code\u00a0», «\u00a0down\u00a0» ou «\u00a0up\u00a0»\u00a0; trouvé\u00a0: "
             "un nombre.",
             "「code」、「down」または「up」が来るべきところに、数があります。",
             "Ожидалось: «code», «down» или «up»; найдено: число."}},
        Row{"what System Events refuses",
            inSystemEvents("key code 127"),
            -10000,
            "System Events got an error: the power key is never pressed by a script.",
            {"واجه \u2068System Events\u2069 خطأ: \u2068لا يضغط السكربت مفتاح الطاقة أبدا.\u2069",
             "System Events hat einen Fehler erhalten: Die Ein-/Aus-Taste wird nie von einem Skript "
             "gedrückt.",
             "System Events ha detectado un error: un script no pulsa nunca la tecla de encendido.",
             "System Events a rencontré une erreur\u00a0: un script n’appuie jamais sur la touche "
             "d’alimentation.",
             "System Events でエラーが起きました: スクリプトが電源キーを押すことはありません。",
             "В System Events произошла ошибка: сценарий никогда не нажимает клавишу питания."}},
        Row{"a handler that was given too much",
            "on f(a)\nend f\nf(1, 2)",
            -1721,
            "{1, 2} doesn’t match the parameters {a} for f.",
            {"القيم \u2068{1, 2}\u2069 لا توافق المعاملات \u2068{a}\u2069 للمعالج \u2068f\u2069.",
             "{1, 2} passt nicht zu den Parametern {a} von f.",
             "{1, 2} no corresponde a los parámetros {a} de f.",
             "{1, 2} ne correspond pas aux paramètres {a} de f.",
             "{1, 2} は f のパラメーター {a} と一致しません。",
             "{1, 2} не соответствует параметрам {a} для f."}},
        Row{"a parameter given twice",
            "on f(a, a)\nend f",
            -2750,
            "The a parameter is specified more than once.",
            {"المعامل \u2068a\u2069 مذكور أكثر من مرة.", "Der Parameter a ist mehr als einmal angegeben.",
             "El parámetro a se ha indicado más de una vez.", "Le paramètre a est indiqué plusieurs fois.",
             "パラメーター a が 2 回以上指定されています。", "Параметр a указан более одного раза."}},
        Row{"a command that no macro has",
            "do shell script \"ls\"",
            -2741,
            "“do shell script” is refused: a macro can press keys and nothing else.",
            {"الأمر «\u2068do shell script\u2069» مرفوض: لا يستطيع الماكرو إلا ضغط المفاتيح.",
             "„do shell script“ wird abgelehnt: Ein Makro kann Tasten drücken und sonst nichts.",
             "Se rechaza «do shell script»: una macro solo puede pulsar teclas.",
             "«\u00a0do shell script\u00a0» est refusé\u00a0: une macro ne peut qu’appuyer sur des touches.",
             "「do shell script」は拒否されます: マクロにできるのはキーを押すことだけです。",
             "«do shell script» отклоняется: макрос может только нажимать клавиши."}},
        Row{"a number without words",
            "error number -1728",
            -1728,
            "Can’t get the object.",
            {"لا يمكن الحصول على الكائن.", "Das Objekt kann nicht gelesen werden.",
             "No se puede obtener el objeto.", "Impossible d’obtenir l’objet.",
             "オブジェクトを取得できません。", "Не удаётся получить объект."}},
        Row{"a number that says nothing",
            "error number 7",
            7,
            "An error of type 7 has occurred.",
            {"حدث خطأ من النوع \u20687\u2069.", "Ein Fehler vom Typ 7 ist aufgetreten.",
             "Se ha producido un error de tipo 7.", "Une erreur de type 7 s’est produite.",
             "タイプ 7 のエラーが起きました。", "Произошла ошибка типа 7."}},
        Row{"the script's own words",
            "error \"Can’t get the object.\" number 7",
            7,
            "Can’t get the object.",
            {"Can’t get the object.", "Can’t get the object.", "Can’t get the object.",
             "Can’t get the object.", "Can’t get the object.", "Can’t get the object."}},
        Row{"an error that was caught and raised again",
            "try\nitem 1 of {}\non error m number n\nerror m number n\nend try",
            -1728,
            "Can’t get item 1 of {}.",
            {"Can’t get item 1 of {}.", "Can’t get item 1 of {}.", "Can’t get item 1 of {}.",
             "Can’t get item 1 of {}.", "Can’t get item 1 of {}.", "Can’t get item 1 of {}."}},
        Row{"an error that nothing but its number was caught of",
            "try\nitem 1 of {}\non error number -1700\nend try",
            -1728,
            "Can’t get item 1 of {}.",
            {"لا يمكن الحصول على \u2068item 1 of {}\u2069.", "item 1 of {} kann nicht gelesen werden.",
             "No se puede obtener item 1 of {}.", "Impossible d’obtenir item 1 of {}.",
             "item 1 of {} を取得できません。", "Не удаётся получить item 1 of {}."}}));

/// What a script makes of the errors of its desktop, which says its words in the language of the user.
class RefusingDesktop : public script::SilentDesktop {
  public:
    bool hasApplication(std::string_view /*name*/) override { return true; }
    Result<void> activate(std::string_view name) override {
        return Error{sentence("Windows", "No window of “%1” is open.").arg(name),
                     sentence("Windows", "Start it first.")};
    }
};

class RefusingInjector : public RecordingInjector {
  public:
    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override {
        return Error{sentence("Keys", "A script is running already."), sentence("Keys", "Wait for its end.")};
    }
};

script::RunResult refused(const std::string& source) {
    const auto program = script::compile(source);
    RefusingInjector injector;
    RefusingDesktop desktop;
    script::NoDialogs dialogs;
    return script::run(program.value(), {injector, desktop, dialogs});
}

TEST(DesktopMessagesTest, aScriptReadsWhatTheDesktopSaysInEnglish) {
    const auto caught = [](const std::string& line) {
        return refused("try\n" + line + "\non error m\nreturn m\nend try").value;
    };
    for (const char* const language : {"en", "ar", "de", "es", "fr", "ja", "ru"}) {
        const SpokenSentences spoken({language});
        EXPECT_EQ(caught("tell application \"A\" to activate"),
                  "\"System Events got an error: No window of “A” is open.\"")
            << language;
        EXPECT_EQ(caught("delay 1"),
                  "\"System Events got an error: A script is running already. Wait for its end.\"")
            << language;
        EXPECT_EQ(caught("display dialog \"a\""),
                  "\"System Events got an error: No dialog can be shown here.\"")
            << language;
    }
}

TEST(DesktopMessagesTest, peopleReadItInTheirLanguage) {
    const SpokenSentences spoken({"de"});
    const script::RunResult raised = refused("tell application \"A\" to activate");
    EXPECT_EQ(raised.error->message.text(),
              "System Events hat einen Fehler erhalten: Es ist kein Fenster von „A“ geöffnet.");
    EXPECT_EQ(raised.error->hint.text(), "Starten Sie das Programm zuerst.");
    EXPECT_EQ(refused("delay 1").error->message.text(),
              "System Events hat einen Fehler erhalten: Es läuft bereits ein Skript. Warten Sie, bis es zu "
              "Ende ist.");
}

std::vector<FileCase> failingCases() {
    std::vector<FileCase> cases = readCaseFiles(SCRIPT_CASE_FOLDER);
    std::erase_if(cases, [](const FileCase& row) {
        return row.isPending ||
               (row.kind != FileCase::Kind::runError && row.kind != FileCase::Kind::compileError);
    });
    return cases;
}

TEST(MessagesOfCasesTest, whatACaseComesToIsTheSameInEveryLanguage) {
    const std::vector<FileCase> cases = readCaseFiles(SCRIPT_CASE_FOLDER);
    const SpokenSentences spoken({"ru"});
    for (const FileCase& row : cases) {
        if (row.isPending) continue;
        EXPECT_EQ(outcomeOf(row), expectationOf(row)) << row.name;
    }
}

bool hasOwnWords(const std::string& source) { return source.find("error") != std::string::npos; }

TEST(MessagesOfCasesTest, noWordIsLeftInEnglish) {
    // In Russian no word has Latin letters but those of scripts: what stands in quotes, braces and bars.
    const SpokenSentences spoken({"ru"});
    std::size_t count = 0;
    for (const FileCase& row : failingCases()) {
        if (hasOwnWords(row.source)) continue;
        const script::ScriptError error = traced(row.source).error;
        EXPECT_NE(error.message.text(), error.message.english()) << row.name;
        for (const char* const word : {"found", "end of", "expression", "identifier", " name", "unknown",
                                       "token", " or ", "number;", "got an", "list of"})
            EXPECT_EQ(error.message.text().find(word), std::string::npos)
                << row.name << ": " << error.message;
        ++count;
    }
    EXPECT_GT(count, 100U);
}

}  // namespace
