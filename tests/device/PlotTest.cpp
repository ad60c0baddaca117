// Plots of the pages: what stands in them, and what the user does with them.
#include <cmath>

#include <QClipboard>
#include <QTemporaryDir>

#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/PlotSession.h"
#include "tests/device/RsrpSession.h"
#include "tests/device/RssiSession.h"
#include "tests/device/TxPages.h"

namespace {

constexpr char kReportFails[] =
    R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "fail", "result": 7})";

QString Text(double value)
{
    return QString::number(value, 'f', 3);
}

// A running session with some reports and its plot open.
bool HasReports(CRsrpSession &session, const CPlotHands &plot, int fetches = 3)
{
    if (!session.Running() || !plot.Open())
        return false;
    for (int i = 0; i < fetches; ++i) {
        if (!session.Fetch())
            return false;
    }
    return plot.Shows("RSRP0", "Points", QString::number(session.Rows()));
}

bool ReadsAt(CPluginSession &session, double power, const char *hex)
{
    session.Find<QDoubleSpinBox>(Member("txPowerValue"))->setValue(power);
    session.Press("m_start");
    if (!session.WaitForStatus("Single Tone Tx start..."))
        return false;
    VondSim_AddFault(qPrintable(
        QString(R"({"function": "VOND_MMRf_GetPdValueV7_r", "kind": "bytes", "hex": "%1"})")
            .arg(hex)));
    session.Press("m_btnFetchPd");
    if (!session.WaitForStatus("Finish fetch PD value."))
        return false;
    session.Press("m_stop");
    return session.WaitForStatus("Single Tone Tx stop.");
}

}  // namespace

class PlotTest : public QObject
{
    Q_OBJECT

private slots:
    void reportsStandInThePlotWithTheirFigures_data() { BothRsrpPages(); }
    void reportsStandInThePlotWithTheirFigures()
    {
        QFETCH(QString, mode);
        CRsrpSession session(mode);
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        double sum = 0;
        double lowest = 1e9;
        for (const QString &cell : session.Column("RSRP0")) {
            sum += cell.toDouble();
            lowest = qMin(lowest, cell.toDouble());
        }
        QVERIFY(plot.Shows("RSRP0", "Minimum", Text(lowest)));
        QVERIFY(plot.Shows("RSRP0", "Mean", Text(sum / session.Rows())));
        for (const char *curve : {"RSRP1", "RSSI0", "RSSI1", "BLER"})
            QVERIFY2(plot.Curves().contains(curve), curve);
    }

    void reportsFromBeforeTheWindowAreThere()
    {
        CRsrpSession session("Force");
        QVERIFY(session.Running());
        QVERIFY(session.Fetch());
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        QVERIFY(plot.Shows("RSRP0", "Points", QString::number(session.Rows())));
    }

    void failedReportIsNoPoint()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        VondSim_AddFault(kReportFails);
        QVERIFY(session.Fetch());
        VondSim_ClearFaults();
        QVERIFY(session.Fetch());
        QVERIFY(plot.Shows("RSRP0", "Points", QString::number(session.Rows() - 1)));
    }

    void clearEmptiesThePlot_data() { BothRsrpPages(); }
    void clearEmptiesThePlot()
    {
        QFETCH(QString, mode);
        CRsrpSession session(mode);
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        QVERIFY(session.Stop());
        session.Press("clearPushButton");
        QVERIFY(WaitUntil([&] { return session.Rows() == 0 && plot.Curves().isEmpty(); }));
    }

    void figuresAreOfWhatIsInView()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot, 8));
        const int all = session.Rows();
        plot.Press("m_zoomIn");
        QVERIFY(WaitUntil([&] { return plot.Figure("RSRP0", "Points").toInt() < all; }));
        plot.Press("m_showAll");
        QVERIFY(plot.Shows("RSRP0", "Points", QString::number(all)));
        const QPointF at = plot.Canvas()->rect().center();
        QWheelEvent wheel(at, plot.Canvas()->mapToGlobal(at.toPoint()), {}, {0, 360}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(plot.Canvas(), &wheel);
        QVERIFY(WaitUntil([&] { return plot.Figure("RSRP0", "Points").toInt() < all; }));
        QTest::mouseClick(plot.Canvas(), Qt::RightButton);
        QVERIFY(plot.Shows("RSRP0", "Points", QString::number(all)));
    }

    void aDrawnRectangleIsZoomedTo()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot, 8));
        const int all = session.Rows();
        QWidget *canvas = plot.Canvas();
        QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QMouseEvent move(QEvent::MouseMove, QPoint(canvas->width() / 3, canvas->height() / 2),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas, &move);
        QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier,
                            QPoint(canvas->width() / 3, canvas->height() / 2));
        QVERIFY(WaitUntil([&] { return plot.Figure("RSRP0", "Points").toInt() < all; }));
    }

    void theLegendHidesACurve()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        QTest::mouseClick(plot.LegendEntry(0), Qt::LeftButton);
        QVERIFY(WaitUntil([&] { return !plot.Curves().contains("RSRP0"); }));
        QVERIFY(plot.Curves().contains("RSRP1"));
        QTest::keyClick(plot.LegendEntry(0), Qt::Key_Space);
        QVERIFY(WaitUntil([&] { return plot.Curves().contains("RSRP0"); }));
    }

    void cursorsReadOut()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        plot.Press("m_cursors");
        QVERIFY(WaitUntil([&] { return plot.Curves().value(0) == "Cursors"; }));
        const double a = plot.Figure("RSRP0", "At A").toDouble();
        const double b = plot.Figure("RSRP0", "At B").toDouble();
        QVERIFY(a < -1);
        QVERIFY(std::fabs(plot.Figure("RSRP0", QString::fromUtf8("B \u2212 A")).toDouble() -
                          (b - a)) < 0.002);
        const QString before = plot.Figure("Cursors", "At A");
        for (int step = 0; step < 30; ++step)
            plot.Window()->findChild<QAction *>("m_actionARight")->trigger();
        QVERIFY(WaitUntil(
            [&] { return plot.Figure("Cursors", "At A").toDouble() > before.toDouble(); }));
    }

    void picturesAreSaved_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("png") << "plot.png" << QByteArray("\x89PNG");
        QTest::newRow("svg") << "plot.svg" << QByteArray("<?xml");
        QTest::newRow("pdf") << "plot.pdf" << QByteArray("%PDF");
    }
    void picturesAreSaved()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, begin);
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        const QTemporaryDir folder;
        AnswerFileDialog(folder.filePath(file));
        plot.Press("m_save");
        QFile saved(folder.filePath(file));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        const QByteArray bytes = saved.readAll();
        QVERIFY(bytes.startsWith(begin));
        QVERIFY2(bytes.size() > 5000, qPrintable(QString::number(bytes.size())));
        if (file.endsWith("svg"))
            QVERIFY(bytes.contains("RSRP0") && bytes.contains("Time (s)"));
    }

    void aPictureThatCannotBeSavedIsTold()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        AnswerFileDialog("/proc/plot.png");
        CBoxWatcher boxes;
        plot.Press("m_save");
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].title, QString("Save picture failed"));
    }

    void thePictureIsCopied()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        QGuiApplication::clipboard()->clear();
        plot.Press("m_copy");
        QVERIFY(QGuiApplication::clipboard()->image().width() > 600);
    }

    void aCurveAGainModeFollowsEditsAndAClickGoesToItsCell()
    {
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait());
        QVERIFY(session.Run(kRead));
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        const QString main = CCalibrationSession::DataName(2, "lna0");
        QVERIFY(WaitUntil([&] { return plot.Curves().size() == 16; }));
        const QString curve = plot.Curves().value(1);
        QVERIFY2(curve.startsWith("Main "), qPrintable(curve));
        session.Type(2, "lna0", 1, 3, "29");
        QVERIFY(plot.Shows(curve, "Maximum", "29.000"));

        // The highest point of all stands alone.
        const QImage before = plot.Canvas()->grab().toImage();
        QWidget *const cell = session.Find<QTableWidget>(main)->cellWidget(1, 3);
        session.Find<QTableWidget>(main)->cellWidget(0, 0)->setFocus();
        for (int x = 0; x < before.width() && !cell->hasFocus(); x += 4) {
            for (int y = 0; y < before.height() / 5 && !cell->hasFocus(); y += 4)
                QTest::mouseClick(plot.Canvas(), Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
        }
        QVERIFY(WaitUntil([&] { return cell->window()->focusWidget() == cell; }));
    }

    void aptGainsFollowEdits()
    {
        CCalibrationSession session(kAptPage);
        QVERIFY(session.ShowAndWait());
        QVERIFY(session.Run(kRead));
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        QCOMPARE(plot.Curves().size(), 3);
        session.Type(7, "paHighPaGain", 2, 5, "999");
        QVERIFY(plot.Shows(plot.Curves().value(2), "Maximum", "999.000"));
    }

    void aSelectionShowsItsCurves()
    {
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait());
        QVERIFY(session.Run(kRead));
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        session.Type(2, "lna0", 0, 0, "-29");
        const QString curve = plot.Curves().value(0);
        QVERIFY(plot.Shows(curve, "Minimum", "-29.000"));
        session.Select("powerMode", "LPM");
        QVERIFY(WaitUntil([&] { return plot.Figure(curve, "Minimum") != "-29.000"; }));
        session.Select("powerMode", "HPM");
        QVERIFY(plot.Shows(curve, "Minimum", "-29.000"));
    }

    void theLastTenRunsOfRssiAreThere()
    {
        CRssiSession session;
        QVERIFY(session.ShowAndWait());
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        for (int run = 1; run <= 11; ++run) {
            session.Press(kStartButton);
            const QString newest = QString("Path0 Main, run %1").arg(run);
            QVERIFY(WaitUntil([&] { return plot.Curves().contains(newest); }));
        }
        QVERIFY(plot.Curves().contains("Path0 Div, run 2"));
        QVERIFY(!plot.Curves().contains("Path0 Main, run 1"));
        QVERIFY(plot.Shows("Path0 Main, run 11", "Maximum",
                           Text(session.ResultRow(0, CRssiSession::MainRssi).first().toDouble())));
        plot.Press("m_clear");
        QVERIFY(WaitUntil([&] { return plot.Curves().isEmpty(); }));
    }

    void theDetectorHasALineOfBestFit()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        QVERIFY(ReadsAt(session, 0, "00000000"));
        QVERIFY(ReadsAt(session, 10, "000a0000"));
        QVERIFY(ReadsAt(session, 20, "00140000"));
        QVERIFY(ReadsAt(session, 10, "000b0000"));
        QVERIFY2(WaitUntil([&] { return plot.Remark().contains("PD = "); }),
                 qPrintable(plot.Remark()));
        QCOMPARE(plot.Curves(), QStringList("n1, route 1, 1950.000 MHz"));
        QCOMPARE(
            plot.Remark(),
            QString::fromUtf8("n1, route 1, 1950.000 MHz: PD = 1.0000 \u00d7 TX power + 0.250 dB; "
                              "largest deviation 0.750 dB at 10.00 dBm"));
    }

    void theWindowEndsWithItsPage()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        const QPointer<QWidget> window(plot.Window());
        session->ResetPlugin();
        QVERIFY(WaitUntil([&] { return window.isNull(); }));
    }

    void unloadWhileItIsOpenAndReportsAreUnderWay()
    {
        CRsrpSession session("Normal");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        QVERIFY(session.HoldFetch());
        const QPointer<QWidget> window(plot.Window());
        session.Unload();
        QVERIFY(window.isNull());
        VondSim_Release(kRsrpReport);
    }

    void resetWhileThePictureIsBeingSaved()
    {
        CRsrpSession session("Force");
        const CPlotHands plot(session);
        QVERIFY(HasReports(session, plot));
        const QPointer<QWidget> window(plot.Window());
        const QTemporaryDir folder;
        const QString picture = folder.filePath("none.png");
        AnswerFileDialog(picture, [&](QFileDialog *) { session->ResetPlugin(); });
        plot.Press("m_save");
        QVERIFY(WaitUntil([&] { return window.isNull(); }));
        QVERIFY(!QFile::exists(picture));
    }

    void itGoesAndComesWithTheTool()
    {
        CRsrpSession session("Force");
        QVERIFY(session.Ready());
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        session->HidePlugin();
        QVERIFY(WaitUntil([&] { return !plot.Window()->isVisible(); }));
        session->ShowPlugin();
        QVERIFY(WaitUntil([&] { return plot.Window()->isVisible(); }));
    }

    void itStaysOnWhileItsPageIsOff()
    {
        CRsrpSession session("Force");
        QVERIFY(session.Ready());
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        QVERIFY(session.ClickTab("Continuous RX"));
        QVERIFY(plot.Window()->isVisible());
        QVERIFY(plot.Window()->isEnabled());
    }
};

QUORLIN_TEST_CLASS(PlotTest)
#include "PlotTest.moc"
