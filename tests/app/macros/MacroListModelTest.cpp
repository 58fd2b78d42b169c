// SPDX-License-Identifier: MIT
#include "app/macros/MacroListModel.h"

#include <gtest/gtest.h>

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "app/RightToLeft.h"

namespace {

class MacroListModelTest : public testing::Test {
  protected:
    MacroListModelTest() {
        model.setItems({{"Greeting.keyrill", QStringLiteral("Greeting"), {}},
                        {"work/Mail.keyrill", QStringLiteral("Mail"), QStringLiteral("work")},
                        {"work/Note.keyrill", QStringLiteral("Note"), QStringLiteral("work")}});
    }
    std::string rows(int role = Qt::DisplayRole) const {
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row)
            lines.append(model.data(model.index(row), role).toString());
        return lines.join(u'|').toStdString();
    }
    MacroListModel model;
};

TEST_F(MacroListModelTest, groupsStandAboveTheirMacros) {
    EXPECT_EQ(rows(), "Greeting|work|Mail|Note");
    EXPECT_EQ(rows(Qt::AccessibleTextRole), "Greeting|Group work|Mail|Note");
    EXPECT_EQ(model.flags(model.index(1)), Qt::NoItemFlags);
    // Though it cannot be chosen.
    EXPECT_EQ(model.data(model.index(1), Qt::ForegroundRole).value<QBrush>(),
              QGuiApplication::palette().brush(QPalette::Active, QPalette::Text));
    EXPECT_EQ(model.itemAt(model.index(1)), nullptr);
    EXPECT_EQ(model.itemAt(model.index(2))->path, "work/Mail.keyrill");
    EXPECT_EQ(model.indexOf("work/Note.keyrill").row(), 3);
}

TEST_F(MacroListModelTest, theNeighbourIsTheMacroBelowOrTheOneAbove) {
    const auto neighbour = [this](int row) { return model.neighbourOf(model.index(row)).row(); };
    EXPECT_EQ(neighbour(0), 2) << "past the name of a group";
    EXPECT_EQ(neighbour(2), 3);
    EXPECT_EQ(neighbour(3), 2);
    EXPECT_FALSE(model.neighbourOf({}).isValid());
    model.setQuery(QStringLiteral("note"));
    EXPECT_FALSE(model.neighbourOf(model.index(1)).isValid()) << "the only one that is found";
}

TEST_F(MacroListModelTest, namesAndHotKeysKeepTheirDirection) {
    model.setItems({{"ls -l.keyrill", QStringLiteral("ls -l"), {}, QStringLiteral("Ctrl+G")}});
    model.setChanged("ls -l.keyrill", true);
    const RightToLeft meanwhile;
    EXPECT_EQ(rows(), "\u2068ls -l\u2069 • (\u2068Ctrl+G\u2069)");
    EXPECT_EQ(rows(Qt::EditRole), "ls -l");
}

TEST_F(MacroListModelTest, isReadOutWithItsHotKey) {
    model.setItems({{"Greeting.keyrill", QStringLiteral("Greeting"), {}, QStringLiteral("Ctrl+G")}});
    EXPECT_EQ(rows(Qt::AccessibleTextRole), "Greeting (Ctrl+G)");
    model.setChanged("Greeting.keyrill", true);
    EXPECT_EQ(rows(Qt::AccessibleTextRole), "Greeting (Ctrl+G), not saved");
}

TEST_F(MacroListModelTest, whatIsLookedForIsThereAtOnceWithItsGroup) {
    model.setContent("work/Note.keyrill", "buy milk");
    model.setQuery(QStringLiteral("milk"));
    EXPECT_EQ(rows(), "work|Note");
    model.setQuery(QStringLiteral("greet"));
    EXPECT_EQ(rows(), "Greeting");
    EXPECT_FALSE(model.indexOf("work/Note.keyrill").isValid());
    EXPECT_EQ(model.firstMacro().row(), 0);
    model.setQuery({});
    EXPECT_EQ(rows(), "Greeting|work|Mail|Note");
}

TEST_F(MacroListModelTest, aNameThatIsTypedIsAskedForAndNotTaken) {
    std::vector<std::pair<std::string, QString>> wishes;
    QObject::connect(
        &model, &MacroListModel::renameWanted,
        [&wishes](const std::string& path, const QString& name) { wishes.emplace_back(path, name); });
    EXPECT_TRUE(model.setData(model.index(2), QStringLiteral("Letter"), Qt::EditRole));
    EXPECT_FALSE(model.setData(model.index(2), QStringLiteral("Mail"), Qt::EditRole))
        << "the name that it has";
    ASSERT_EQ(wishes.size(), 1U);
    EXPECT_EQ(wishes[0].first, "work/Mail.keyrill");
    EXPECT_EQ(wishes[0].second, QStringLiteral("Letter"));
    EXPECT_EQ(rows(), "Greeting|work|Mail|Note");
}

TEST_F(MacroListModelTest, whatIsNotSavedIsMarked) {
    model.setChanged("Greeting.keyrill", true);
    EXPECT_EQ(rows(), "Greeting •|work|Mail|Note");
    EXPECT_EQ(rows(Qt::AccessibleTextRole), "Greeting, not saved|Group work|Mail|Note");
    EXPECT_EQ(rows(Qt::EditRole), "Greeting||Mail|Note");
    model.setChanged("Greeting.keyrill", false);
    EXPECT_EQ(rows(), "Greeting|work|Mail|Note");
}

}  // namespace
