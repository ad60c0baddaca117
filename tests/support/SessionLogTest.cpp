#include "Support/SessionLog.h"

#include <QtTest>

#include "tests/common/TestClass.h"

namespace {

QString Cell(const CSessionLog &log, int row, int column)
{
    return log.index(row, column).data().toString();
}

}  // namespace

class SessionLogTest : public QObject
{
    Q_OBJECT

private slots:
    void anEventHasTimePlaceKindAndText()
    {
        CSessionLog log;
        log.Add(ESessionEvent::Warning, "RSSI", "Please choose\nthe file");
        QCOMPARE(log.rowCount(), 1);
        const auto time =
            QDateTime::fromString(Cell(log, 0, CSessionLog::eTime), Qt::ISODateWithMs);
        QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTime())) < 60);
        QCOMPARE(Cell(log, 0, CSessionLog::eWhere), QString("RSSI"));
        QCOMPARE(Cell(log, 0, CSessionLog::eKind), QString("warning"));
        QCOMPARE(Cell(log, 0, CSessionLog::eText), QString("Please choose the file"));
        QCOMPARE(log.index(0, CSessionLog::eText).data(Qt::ToolTipRole).toString(),
                 QString("Please choose\nthe file"));
    }

    void theOldestEventsGo()
    {
        CSessionLog log(3);
        for (int i = 0; i < 5; ++i)
            log.Add(ESessionEvent::Status, "RSSI", QString::number(i));
        QCOMPARE(log.rowCount(), 3);
        QCOMPARE(Cell(log, 0, CSessionLog::eText), QString("2"));
        QCOMPARE(Cell(log, 2, CSessionLog::eText), QString("4"));
    }

    void progressTakesThePlaceOfTheLineBefore()
    {
        CSessionLog log;
        const QString read("Read data from target: ");
        log.Add(ESessionEvent::Status, "APT Profile", read + "round 1, 0 of 9 routes");
        QSignalSpy changed(&log, &CSessionLog::dataChanged);
        log.Add(ESessionEvent::Status, "APT Profile", read + "round 2, 9 of 9 routes");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex(), log.index(0, CSessionLog::eTime));
        QCOMPARE(changed[0][1].toModelIndex(), log.index(0, CSessionLog::eText));
        log.Add(ESessionEvent::Status, "RX Pathloss", read + "3 of 9 routes");
        QCOMPARE(log.rowCount(), 2);
        QCOMPARE(Cell(log, 0, CSessionLog::eText), read + "round 2, 9 of 9 routes");
    }

    void equalFailuresAllStay()
    {
        CSessionLog log;
        for (int i = 0; i < 2; ++i)
            log.Add(ESessionEvent::Status, "Quorlin RF", "RF off failed: Target: no answer");
        QCOMPARE(log.rowCount(), 2);
    }
};

QUORLIN_TEST_CLASS(SessionLogTest)
#include "SessionLogTest.moc"
