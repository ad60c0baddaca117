// A wrong path loss, written on its page, is an error on the RSSI page, in dB; the right one mends it.
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/PathLossTables.h"
#include "tests/device/RssiSession.h"

namespace {

constexpr int kSlots = 8;
constexpr double kStepDb = 1.0 / 32;

// One subband, so that a route's losses on main are eight cells; no chance.
QString QuietDut()
{
    return R"({"name": "quiet", "base": "handset", "radio": {"fluctuationDb": 0},
               "calibration": {"rxType1Subbands": {"default": 1}},
               "rxLimits": [{"band": 1, "route": 1, "kHz": [1920000, 1980000]}]})";
}

struct SReading
{
    double main = 0.0;  // dBm
    double div = 0.0;
};

SReading MeasureLevel()
{
    CRssiSession session(QuietDut());
    if (!session.ShowAndWait() || !Calculate(session) || !Measure(session))
        return {};
    return {session.ResultRow(0, CRssiSession::MainRssi)[0].toDouble(),
            session.ResultRow(0, CRssiSession::DivRssi)[0].toDouble()};
}

}  // namespace

class CalibratedRssiTest : public QObject
{
    Q_OBJECT

private slots:
    void wrongLossShowsInDecibelsAndTheRightOneMendsIt();

private:
    // Adds to the main losses of route 1, as a user types them, and writes.
    static void AddLoss(double db);
};

void CalibratedRssiTest::AddLoss(double db)
{
    CCalibrationSession session(kPathLossPage, QuietDut());
    QVERIFY(IsReady(session));
    for (int slot = 0; slot < kSlots; ++slot) {
        const double loss = session.CellText(kMain, "lna0", slot, 0).toDouble();
        session.Type(kMain, "lna0", slot, 0, QString::number(loss + db, 'f', 5));
    }
    QVERIFY(session.Run(kWrite));
}

void CalibratedRssiTest::wrongLossShowsInDecibelsAndTheRightOneMendsIt()
{
    const QTemporaryDir folder;
    qputenv("VOND_SIM_FLASH", folder.filePath("dut.flash").toUtf8());
    const SReading right = MeasureLevel();
    QVERIFY2(right.main < -60 && right.main > -70, qPrintable(QString::number(right.main)));
    AddLoss(3.0);
    const SReading wrong = MeasureLevel();
    QVERIFY2(qAbs(wrong.main - right.main - 3.0) <= kStepDb,
             qPrintable(QString("%1 dB").arg(wrong.main - right.main)));
    QCOMPARE(wrong.div, right.div);
    AddLoss(-3.0);
    QCOMPARE(MeasureLevel().main, right.main);
    qunsetenv("VOND_SIM_FLASH");
}

QUORLIN_TEST_CLASS(CalibratedRssiTest)
#include "CalibratedRssiTest.moc"
