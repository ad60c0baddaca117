// The RSSI page when something happens to it while the target works: another tab, hide, reset,
// another DUT.
#include <memory>

#include <QDockWidget>
#include <QThreadPool>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

namespace {

// Lets the held call go, and its answer arrive.
void Finish(const QByteArray &function)
{
    VondSim_Release(function);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

}  // namespace

class RssiLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void answerArrivesBehindAnotherTab_data();
    void answerArrivesBehindAnotherTab();
    void answerArrivesWhileTheWindowIsHidden_data();
    void answerArrivesWhileTheWindowIsHidden();
    void resetDuringARequestDropsTheAnswer_data();
    void resetDuringARequestDropsTheAnswer();
    void resetWhileTheFailureBoxIsOpen_data();
    void resetWhileTheFailureBoxIsOpen();
    void otherGenerationLeavesThePageAsItWas_data();
    void otherGenerationLeavesThePageAsItWas();
    void hostCanDisableAndEnableThePage();
    void hostsEnableLetsNoRequestBeginDuringAnother_data() { AddRequestRows(); }
    void hostsEnableLetsNoRequestBeginDuringAnother();
};

void RssiLifetimeTest::answerArrivesBehindAnotherTab_data()
{
    AddRequestRows();
}

// There is nothing to stop: a change of tabs leaves the request alone.
void RssiLifetimeTest::answerArrivesBehindAnotherTab()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(function);
    session.Press(button);
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));
    QVERIFY(session.ClickTab("Continuous RX"));
    VondSim_Release(function);
    QVERIFY(session.WaitForStatus(done));
    QVERIFY(session.ClickTab("RSSI"));
    QCOMPARE(session.Enabled(), QString("both"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r") + CountCalls("VOND_NRf_TestStop_r"), 0);
}

void RssiLifetimeTest::answerArrivesWhileTheWindowIsHidden_data()
{
    AddRequestRows();
}

void RssiLifetimeTest::answerArrivesWhileTheWindowIsHidden()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(function);
    session.Press(button);
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));
    session->HidePlugin();
    VondSim_Release(function);
    QVERIFY(session.WaitForStatus(done));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    session->ShowPlugin();
    QCOMPARE(session.Enabled(), QString("both"));
}

void RssiLifetimeTest::resetDuringARequestDropsTheAnswer_data()
{
    AddRequestRows();
}

void RssiLifetimeTest::resetDuringARequestDropsTheAnswer()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(function);
    session.Press(button);
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));
    session->ResetPlugin();
    QVERIFY(!session.Page());
    Finish(function);
    QCOMPARE(CountCalls(function), 1);
    QVERIFY(session.StatusBar() != done);
    session->HidePlugin();
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Enabled(), QString("both"));
    session.Press(button);
    QVERIFY(session.WaitForStatus(done));
}

void RssiLifetimeTest::resetWhileTheFailureBoxIsOpen_data()
{
    AddRequestRows();
}

void RssiLifetimeTest::resetWhileTheFailureBoxIsOpen()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(FailFault(function));
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press(button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!session.Page());
}

void RssiLifetimeTest::otherGenerationLeavesThePageAsItWas_data()
{
    AddRequestRows();
}

// The DUT was changed under the page. The measurement answers no document at all.
void RssiLifetimeTest::otherGenerationLeavesThePageAsItWas()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, failed);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    session.Press(kStartButton);
    QVERIFY(session.WaitForStatus("Fetch RSSI done"));
    const QStringList shown = session.ResultRow(0, CRssiSession::MainRssi);
    const int before = CountCalls(function);

    // The caches forget, the page stays: the host resets, and shows nothing yet.
    const std::unique_ptr<QDockWidget> page(session.Page());
    QTableWidget *table = session.ResultTable(0);
    page->setParent(nullptr);
    const auto press = [&] {
        QTest::mouseClick(page->findChild<QPushButton *>(button), Qt::LeftButton);
    };
    VondSim_SetProfile("gen0");
    session->ResetPlugin();
    page->show();
    CBoxWatcher boxes;
    press();
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(boxes.Seen()[0].text.contains("Operation does not execute yet."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QCOMPARE(CountCalls(function), before);
    for (int c = 0; c < table->columnCount(); ++c)
        QCOMPARE(qobject_cast<QLabel *>(table->cellWidget(CRssiSession::MainRssi, c))->text(),
                 shown[c]);

    // The page still has its document: with the DUT back, it asks as before.
    VondSim_SetProfileText(Type1Profile().toUtf8());
    session->ResetPlugin();
    press();
    QVERIFY(WaitUntil([&] { return CountCalls(function) == before + 1; }));
    QCOMPARE(JournalOf(function).last().call.result, 0);
    QVERIFY(WaitUntil([&] { return page->findChild<QPushButton *>(button)->isEnabled(); }));
    QCOMPARE(boxes.Seen().size(), 1);
}

void RssiLifetimeTest::hostCanDisableAndEnableThePage()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    session->DisablePages();
    QCOMPARE(session.Enabled(), QString("none"));
    session->EnablePages();
    QCOMPARE(session.Enabled(), QString("both"));
}

void RssiLifetimeTest::hostsEnableLetsNoRequestBeginDuringAnother()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(function);
    session.Press(button);
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));
    session->DisablePages();
    session->EnablePages();
    QCOMPARE(session.Enabled(), QString("none"));
    VondSim_Release(function);
    QVERIFY(session.WaitForStatus(done));
    QCOMPARE(session.Enabled(), QString("both"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
}

QUORLIN_TEST_CLASS(RssiLifetimeTest)
#include "RssiLifetimeTest.moc"
