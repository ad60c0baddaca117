// The log of the session, in its window: what the status bar and the boxes have said.
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/TxPages.h"

namespace {

QWidget *OpenLog(const CPluginSession &session)
{
    QTest::keyClick(session.Window(), Qt::Key_L, Qt::ControlModifier);
    return session.Window()->findChild<QWidget *>("CSessionLogWindow");
}

QStringList Texts(const QWidget *log)
{
    const QAbstractItemModel *events = log->findChild<QTableView *>("m_events")->model();
    QStringList texts;
    for (int row = 0; row < events->rowCount(); ++row)
        texts.append(QStringList{events->index(row, 1).data().toString(),
                                 events->index(row, 2).data().toString(),
                                 events->index(row, 3).data().toString()}
                         .join('|'));
    return texts;
}

void Type(const QWidget *log, const QString &words)
{
    auto *const filter = log->findChild<QLineEdit *>("m_filter");
    filter->clear();
    QTest::keyClicks(filter, words);
}

}  // namespace

class SessionLogWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void whatTheStatusBarOverwritesIsThere()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "start...")));
        session.Press("m_stop");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "stop.")));
        const QWidget *log = OpenLog(session);
        QVERIFY(log && log->isVisible());
        const QStringList texts = Texts(log);
        QCOMPARE(texts.mid(texts.size() - 2),
                 (QStringList{"Single Tone TX|status|Single Tone Tx start...",
                              "Single Tone TX|status|Single Tone Tx stop."}));
        QVERIFY(texts.contains("Quorlin RF|status|Init done."));
    }

    void aBoxIsThereWithItsText()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        CBoxWatcher boxes;
        VondSim_AddFault(
            R"({"function": "VOND_MMRf_SingleToneTxV7_r", "kind": "fail", "result": 4})");
        session.Press("m_start");
        QVERIFY(WaitUntil(
            [&] { return boxes.Seen().size() == 1 && !QApplication::activeModalWidget(); }));
        QApplication::setActiveWindow(session.Window());
        const QWidget *log = OpenLog(session);
        QVERIFY(log);
        const QString last = Texts(log).last();
        QVERIFY2(last.startsWith("Single Tone TX|error|Single Tone Tx start failed"),
                 qPrintable(last));
        QVERIFY2(last.contains("Target: failure on demand"), qPrintable(last));
    }

    void theFilterShowsTheEventsThatHaveItsWords()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "start...")));
        const QWidget *log = OpenLog(session);
        QVERIFY(Texts(log).contains("Quorlin RF|status|Init done."));
        Type(log, "TONE tx START...");
        QVERIFY(!Texts(log).isEmpty());
        for (const QString &text : Texts(log))
            QCOMPARE(text, QString("Single Tone TX|status|Single Tone Tx start..."));
    }

    void copyTakesTheSelectedRowsWithTheirCaptions()
    {
        CPluginSession session;
        QVERIFY(session.ShowAndWait());
        QWidget *log = OpenLog(session);
        Type(log, "Init done");
        auto *const events = log->findChild<QTableView *>("m_events");
        QApplication::setActiveWindow(log);
        events->selectRow(0);
        events->setFocus();
        QTest::keyClick(events, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QString("Time\tWhere\tKind\tText"));
        QCOMPARE(lines[1].section('\t', 1), QString("Quorlin RF\tstatus\tInit done."));
    }

    void saveWritesWhatIsShownOrTellsWhyNot_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("a file") << "log.txt" << true;
        QTest::newRow("a folder that is not there") << "no/log.txt" << false;
    }
    void saveWritesWhatIsShownOrTellsWhyNot()
    {
        QFETCH(QString, name);
        QFETCH(bool, isSaved);
        CPluginSession session;
        QVERIFY(session.ShowAndWait());
        const QWidget *log = OpenLog(session);
        Type(log, "Init done");
        const QTemporaryDir folder;
        AnswerFileDialog(folder.filePath(name));
        log->findChild<QPushButton *>("m_save")->click();
        const QString outcome = log->findChild<QLabel *>("m_outcome")->text();
        QVERIFY2(outcome.startsWith(isSaved ? "Saved to " : "Not saved: "), qPrintable(outcome));
        QFile file(folder.filePath(name));
        QCOMPARE(file.open(QIODevice::ReadOnly), isSaved);
        if (isSaved)
            QVERIFY(file.readAll().contains("Quorlin RF\tstatus\tInit done.\n"));
    }

    void aResetLeavesItAndAnUnloadTakesItAlong()
    {
        QPointer<QWidget> log;
        {
            CPluginSession session;
            QVERIFY(session.ShowAndWait());
            log = OpenLog(session);
            session->ResetPlugin();
            QVERIFY(session.ShowAndWait());
            QVERIFY(log && log->isVisible());
            session.Unload();
        }
        QVERIFY(!log);
    }
};

QUORLIN_TEST_CLASS(SessionLogWindowTest)
#include "SessionLogWindowTest.moc"
