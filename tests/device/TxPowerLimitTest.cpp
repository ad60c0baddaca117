// The user's own limit of the TX power: above it Start sends nothing and says so.
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

// As a user types it into the dialog.
void SetLimit(const CPluginSession &session, const QString &text)
{
    QTimer::singleShot(0, qApp, [text] {
        auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto *line = dialog->findChild<QLineEdit *>();
        line->clear();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    });
    session.Window()->findChild<QAction *>("m_actionTxPowerLimit")->trigger();
}

QDoubleSpinBox *Power(const CPluginSession &session, const QString &group = "group1")
{
    return session.Find<QDoubleSpinBox>("cmdIf_request_" + group + "_memberProperty_txPowerValue");
}

}  // namespace

class TxPowerLimitTest : public QObject
{
    Q_OBJECT

private slots:
    void aboveItStartSendsNothingAndSaysSo_data()
    {
        QTest::addColumn<STxPage>("page");
        for (const STxPage &page : {kSingleTone, kForced, kNormal})
            QTest::newRow(page.className) << page;
    }
    void aboveItStartSendsNothingAndSaysSo()
    {
        QFETCH(STxPage, page);
        CPluginSession session("handset", 1, page.className);
        QVERIFY(session.ShowAndWait());
        SetLimit(session, "10.5");
        Power(session)->setValue(10.51);
        VondSim_ClearJournal();
        {
            CBoxWatcher boxes;
            session.Press("m_start");
            QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
            const QString words("TX power 10.51 dBm is above your limit of 10.50 dBm.");
            QCOMPARE(boxes.Seen()[0].text, words);
            QCOMPARE(session.StatusBar(), words);
        }
        QCOMPARE(CountCalls(page.start), 0);
        QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());

        Power(session)->setValue(10.5);
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(page, "start...")));
        QCOMPARE(CountCalls(page.start), 1);
    }

    void aPseudoTransmissionIsHeldAgainstItAndAReceptionIsNot()
    {
        CPluginSession session("handset", 1, "CNrRsrpForceDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        SetLimit(session, "-20");
        VondSim_ClearJournal();
        session.Find<QComboBox>("cmdIf_request_group1_memberProperty_trxMode")
            ->setCurrentText("Pseudo TX/RX");
        {
            CBoxWatcher boxes;
            session.Press("m_start");
            QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        }
        QCOMPARE(CountCalls("VOND_NRf_RsrpV7_r"), 0);
        session.Find<QComboBox>("cmdIf_request_group1_memberProperty_trxMode")
            ->setCurrentText("DL RX");
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Rsrp start..."));
    }

    void itIsThereInTheNextSessionUntilItIsTakenAway()
    {
        {
            CPluginSession session("handset", 1, kSingleTone.className);
            QVERIFY(session.ShowAndWait());
            SetLimit(session, "0");
        }
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        {
            CBoxWatcher boxes;
            session.Press("m_start");
            QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        }
        SetLimit(session, "");
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "start...")));
    }
};

QUORLIN_TEST_CLASS(TxPowerLimitTest)
#include "TxPowerLimitTest.moc"
