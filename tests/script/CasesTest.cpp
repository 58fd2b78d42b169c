// SPDX-License-Identifier: MIT
//
// The cases of script-cases.jsonl: scripts, and what is known or assumed of what they do. One line a case.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <set>

#include "script/Traced.h"

namespace {

struct Case {
    std::string name;
    std::string source;
    QJsonObject expected;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

std::vector<Case> readCases() {
    QFile file(QStringLiteral(SCRIPT_CASES));
    std::vector<Case> cases;
    if (!file.open(QIODevice::ReadOnly)) return cases;
    while (!file.atEnd()) {
        const QJsonObject row = QJsonDocument::fromJson(file.readLine()).object();
        cases.push_back({row["name"].toString().toStdString(), row["source"].toString().toStdString(),
                         row["expect"].toObject()});
    }
    return cases;
}

QJsonArray readEvents(const std::string& lines) {
    QJsonArray events;
    for (const QByteArray& line : QByteArray::fromStdString(lines).split('\n')) {
        if (!line.isEmpty()) events.append(QJsonDocument::fromJson(line).array());
    }
    return events;
}

std::string printed(const QJsonArray& events) {
    return QJsonDocument(events).toJson(QJsonDocument::Compact).toStdString();
}

QString phaseName(Traced::Phase phase) {
    return phase == Traced::Phase::compile ? QStringLiteral("compile") : QStringLiteral("run");
}

bool passes(const Case& row, const Traced& result) {
    const bool fails = !row.expected["error"].isNull();
    if (fails != (result.phase != Traced::Phase::none)) return false;
    if (fails && row.expected["error"].toInt() != result.error.number) return false;
    if (fails && row.expected["phase"].toString() != phaseName(result.phase)) return false;
    return readEvents(result.events) == row.expected["events"].toArray();
}

class CasesTest : public testing::TestWithParam<Case> {};

TEST_P(CasesTest, doesWhatIsKnownOfIt) {
    const Case& row = GetParam();
    const Traced result = traced(row.source);
    EXPECT_TRUE(passes(row, result)) << row.source
                                     << "\nexpected: " << printed(row.expected["events"].toArray())
                                     << "\nfound:    " << printed(readEvents(result.events)) << " "
                                     << result.error.number << " " << result.error.message;
}

INSTANTIATE_TEST_SUITE_P(Known, CasesTest, testing::ValuesIn(readCases()), [](const auto& row) {
    std::string name = row.param.name;
    for (char& c : name) c = c == '-' ? '_' : c;
    return name;
});

TEST(CasesFileTest, isWhole) {
    std::set<std::string> names;
    for (const Case& row : readCases()) names.insert(row.name);
    EXPECT_EQ(names.size(), 64U);
}

}  // namespace
