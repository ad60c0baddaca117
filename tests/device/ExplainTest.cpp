// "Explain changes": why the members of a page have changed.
#include "tests/common/TestClass.h"
#include "tests/device/ExplainSession.h"
#include "tests/device/TxPages.h"

class ExplainTest : public QObject
{
    Q_OBJECT

private slots:
    void dump()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        auto *band = session.Find<QComboBox>(Member("band"));
        band->setFocus();
        QTest::keyClick(band, Qt::Key_Down);
        auto *power = session.Find<QDoubleSpinBox>(Member("txPowerValue"));
        power->setFocus();
        power->selectAll();
        QTest::keyClicks(power, "-7");
        session.Press("m_start");
        session.WaitForStatus("Single Tone Tx start...");
        session.Press("m_btnFetchPd");
        session.WaitForStatus("Finish fetch PD value.");
        QTest::qWait(200);
        for (const SExplained &row : explain.Rows())
            qWarning().noquote() << row.time << row.member << "|" << row.from << "|" << row.to << "|" << row.because.left(150);
    }
};

QUORLIN_TEST_CLASS(ExplainTest)
#include "ExplainTest.moc"
