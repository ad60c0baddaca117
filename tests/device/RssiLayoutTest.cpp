// The RSSI page as the eye finds it: sizes of tables, cells and page.
#include <cstddef>

#include <QDockWidget>
#include <QHeaderView>
#include <QStackedWidget>

#include "tests/common/AnswerField.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

class RssiLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void tablesHaveFiveColumnsWhateverTheChannelNumber_data();
    void tablesHaveFiveColumnsWhateverTheChannelNumber();
    void layoutIsFixedWhenTheInitIsDone();
    void noResultIsCutOff();
    void pageFitsTheWindow();
};

void RssiLayoutTest::tablesHaveFiveColumnsWhateverTheChannelNumber_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("five") << 5;
}

void RssiLayoutTest::tablesHaveFiveColumnsWhateverTheChannelNumber()
{
    QFETCH(int, channels);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    session.Find<QSpinBox>(MemberName("numFreq"))->setValue(channels);
    session.Press(kStartButton);
    CBoxWatcher boxes;  // the DUT may refuse to measure nothing
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(RequestNumber(JournalOf(kRssiCall).last(), "numFreq"),
             std::optional<int64_t>(channels));
    for (int path : {0, 1}) {
        QCOMPARE(session.ResultTable(path)->columnCount(), 5);
        QCOMPARE(session.ResultTable(path)->rowCount(), 3);
    }
    QCOMPARE(session.ResultTable(0)->verticalHeaderItem(CRssiSession::MainRssi)->text(),
             QString("Main RSSI"));
}

void RssiLayoutTest::layoutIsFixedWhenTheInitIsDone()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->findChild<QStackedWidget *>()->currentIndex(), 0);
    for (const int path : {0, 1}) {
        const QTableWidget *table = session.ResultTable(path);
        QCOMPARE(table->minimumSize(), table->maximumSize());
        int width = table->verticalHeader()->width();
        for (int c = 0; c < table->columnCount(); ++c)
            width += table->columnWidth(c);
        int height = table->horizontalHeader()->height();
        for (int r = 0; r < table->rowCount(); ++r)
            height += table->rowHeight(r);
        QCOMPARE(table->size(), QSize(width, height));
        QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }
    const QSize size = session.ResultTable(0)->size();
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultTable(0)->size(), size);
}

void RssiLayoutTest::noResultIsCutOff()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    AnswerField(kRssiCall, "dlFrequency[0]", 4294967295);           // the highest of the record
    AnswerField(kRssiCall, "rows.single.row[0].rssiMain", -32768);  // and the lowest level
    AnswerField(kRssiCall, "rows.single.row[0].rssiDiv", -32768);
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi)[0], QString("-1024.00000"));
    for (auto row : {CRssiSession::DlFreq, CRssiSession::MainRssi, CRssiSession::DivRssi}) {
        const QWidget *cell = session.ResultTable(0)->cellWidget(row, 0);
        QVERIFY2(cell->sizeHint().width() <= cell->width(), qPrintable(QString::number(row)));
        QVERIFY(cell->sizeHint().height() <= cell->height());
    }
    auto *frequency = qobject_cast<QSpinBox *>(session.FrequencyTable()->cellWidget(0, 0));
    QVERIFY(frequency->fontMetrics().horizontalAdvance("7125000") < frequency->width() - 4);
}

// The window opens with 1004 x 769 pixels; tab bar, title and status line take their part.
void RssiLayoutTest::pageFitsTheWindow()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Page()->minimumSizeHint().width() <= 1004);
    const int around = session.Window()->height() - session.Page()->height();
    QVERIFY2(session.Page()->minimumSizeHint().height() + around <= 769,
             qPrintable(QString::number(session.Page()->minimumSizeHint().height() + around)));
}

QUORLIN_TEST_CLASS(RssiLayoutTest)
#include "RssiLayoutTest.moc"
