// Cells as spreadsheets write them.
#include "View/engine/ClipboardText.h"

#include <QtTest>

#include "tests/common/TestClass.h"

class CClipboardTextTest : public QObject
{
    Q_OBJECT

private slots:
    void cellsAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<QStringList>>("rows");
        using Rows = QList<QStringList>;
        QTest::newRow("nothing") << "" << Rows{};
        QTest::newRow("one cell") << "1.5" << Rows{{"1.5"}};
        QTest::newRow("one cell with its end") << "1.5\n" << Rows{{"1.5"}};
        QTest::newRow("block") << "1\t2\n3\t4\n" << Rows{{"1", "2"}, {"3", "4"}};
        QTest::newRow("ends of a PC") << "1\t2\r\n3\t4\r\n" << Rows{{"1", "2"}, {"3", "4"}};
        QTest::newRow("old ends") << "1\r2" << Rows{{"1"}, {"2"}};
        QTest::newRow("empty cells") << "\t2\n3\t" << Rows{{"", "2"}, {"3", ""}};
        QTest::newRow("empty line") << "1\n\n2" << Rows{{"1"}, {""}, {"2"}};
        QTest::newRow("quoted") << "\"1\"\t\"a\tb\"" << Rows{{"1", "a\tb"}};
        QTest::newRow("quoted end of line") << "\"a\nb\"\t2" << Rows{{"a\nb", "2"}};
        QTest::newRow("quotation mark inside") << "\"6\"\"\"\t2" << Rows{{"6\"", "2"}};
        QTest::newRow("text behind a quotation") << "\"1\"x\t2" << Rows{{"1x", "2"}};
        QTest::newRow("quotation never closed") << "\"1\t2" << Rows{{"\"1", "2"}};
        QTest::newRow("quotation mark later in a cell") << "6\"\t2" << Rows{{"6\"", "2"}};
        QTest::newRow("rows of two lengths") << "1\t2\n3" << Rows{{"1", "2"}, {"3"}};
        QTest::newRow("blanks stay") << " 1 \t2" << Rows{{" 1 ", "2"}};
    }

    void cellsAreRead()
    {
        QFETCH(QString, text);
        const CellRows rows = CellsOfText(text);
        QTEST(QList<QStringList>(rows.begin(), rows.end()), "rows");
    }

    void whatIsWrittenIsReadAgain()
    {
        const CellRows rows = {{"1.5", "", "a\tb"}, {"\"q\"", "c\r\nd", "6\""}};
        QCOMPARE(TextOfCells({{"1.5", "2"}, {"3", "4"}}), QString("1.5\t2\n3\t4\n"));
        QVERIFY(CellsOfText(TextOfCells(rows)) == rows);
    }

    void textOfTooManyCellsHasNone()
    {
        QVERIFY(CellsOfText(QString(kMostClipboardCells, '\t')).empty());
        QCOMPARE(CellsOfText(QString(kMostClipboardCells - 1, '\t')).size(), size_t(1));
    }

    void openQuotationsAreReadInOneGo()
    {
        QString text;
        for (int i = 0; i < 200000; ++i)
            text += "\"\t";
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(CellsOfText(text + "\"x").size(), size_t(1));
        QVERIFY(timer.elapsed() < 5000);
    }
};

QUORLIN_TEST_CLASS(CClipboardTextTest)
#include "ClipboardTextTest.moc"
