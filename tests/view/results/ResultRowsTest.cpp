#include "View/results/ResultRows.h"

#include <gtest/gtest.h>

namespace {

QStringList RowTexts(const CResultRows &rows, int row)
{
    CResultReader reader(rows);
    QStringList texts;
    for (const QByteArray &cell : reader.Cells(row))
        texts.append(QString::fromUtf8(cell));
    return texts;
}

}  // namespace

TEST(ResultRows, giveBackWhatWasAdded)
{
    CResultRows rows;
    EXPECT_EQ(rows.Count(), 0);
    rows.Add({.timeMs = 5, .settings = 1}, {"-85.25", "", "Störung"});
    rows.Add({.timeMs = 6, .settings = 2}, {"", "NAN", ""});
    EXPECT_EQ(rows.Count(), 2);
    EXPECT_EQ(RowTexts(rows, 0), QStringList({"-85.25", "", "Störung"}));
    EXPECT_EQ(RowTexts(rows, 1), QStringList({"", "NAN", ""}));
    EXPECT_EQ(rows.Stamp(1).timeMs, 6);
    EXPECT_EQ(rows.Stamp(1).settings, 2);
    rows.Clear();
    EXPECT_EQ(rows.Count(), 0);
}

TEST(ResultRows, holdManyRowsInOrder)
{
    CResultRows rows;
    constexpr int kMany = 10000;
    for (int i = 0; i < kMany; ++i)
        rows.Add({.timeMs = i}, {QString::number(i), QString::number(-i)});
    EXPECT_EQ(rows.Count(), kMany);
    for (const int row : {0, 4095, 4096, 8191, 8192, kMany - 1}) {
        EXPECT_EQ(RowTexts(rows, row), QStringList({QString::number(row), QString::number(-row)}));
        EXPECT_EQ(rows.Stamp(row).timeMs, row);
    }
}

TEST(ResultRows, copyKeepsItsRowsWhileOthersCome)
{
    CResultRows rows;
    rows.Add({.timeMs = 1}, {"first"});
    const CResultRows copy = rows;
    rows.Add({.timeMs = 2}, {"second"});
    EXPECT_EQ(copy.Count(), 1);
    rows.Clear();
    EXPECT_EQ(RowTexts(copy, 0), QStringList({"first"}));
}
