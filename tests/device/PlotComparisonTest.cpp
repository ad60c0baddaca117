// The DUT or a file beside the curves of a calibration page: thin lines in its plot, and the page as it was.
#include <QMenu>
#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/PlotSession.h"

namespace {

struct SPlottedPage
{
    const char *name;
    const char *page;
    int group;
    const char *member;
    int row;     // its curve's number
    int column;  // of a cell that is plotted
    int curves;
};

constexpr SPlottedPage kPlotted[] = {
    {"path loss", kPathLossPage, 2, "lna0", 1, 3, 16},
    {"APT", kAptPage, 7, "paHighPaGain", 2, 5, 3},
};

void PlottedPages()
{
    QTest::addColumn<int>("plotted");
    for (int i = 0; i < int(std::size(kPlotted)); ++i)
        QTest::newRow(kPlotted[i].name) << i;
}

// A page with the DUT's data and its plot open.
class CPlottedSession : public CCalibrationSession
{
public:
    explicit CPlottedSession(int plotted = 0)
        : CCalibrationSession(kPlotted[plotted].page), what(kPlotted[plotted]), plot(*this)
    {
    }

    bool IsReady()
    {
        return ShowAndWait() && Run(kRead) && plot.Open() &&
               WaitUntil([this] { return plot.Curves().size() == what.curves; });
    }
    QString Curve() const { return plot.Curves().value(what.row); }
    QStringList Figures(const QString &curve) const
    {
        QStringList figures;
        for (const char *column : {"Points", "Minimum", "Maximum", "Mean", "Deviation"})
            figures.append(plot.Figure(curve, column));
        return figures;
    }
    void Edit(const char *text) { Type(what.group, what.member, what.row, what.column, text); }
    QString Edited() const { return CellText(what.group, what.member, what.row, what.column); }
    QString Words() const { return plot.Window()->findChild<QLabel *>("m_status")->text(); }
    // Presses the button and chooses from its menu by a letter, as a person does.
    bool Choose(Qt::Key letter)
    {
        auto *button = plot.Window()->findChild<QPushButton *>("m_compare");
        QTimer::singleShot(0, button,
                           [button, letter] { QTest::keyClick(button->menu(), letter); });
        QTest::mouseClick(button, Qt::LeftButton);
        return WaitUntil([this] { return !Words().startsWith("Reading ") && IsIdle(); });
    }
    bool ChooseFile(const QString &path)
    {
        AnswerFileDialog(path);
        return Choose(Qt::Key_F);
    }

    const SPlottedPage what;
    const CPlotHands plot;
};

}  // namespace

class PlotComparisonTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void theDutStandsBesideThePage_data() { PlottedPages(); }
    void theDutStandsBesideThePage()
    {
        QFETCH(int, plotted);
        CPlottedSession session(plotted);
        QVERIFY(session.IsReady());
        const QString curve = session.Curve();
        const QStringList were = session.Figures(curve);
        session.Edit("27");
        QVERIFY(WaitUntil([&] { return session.Figures(curve) != were; }));
        const QString edited = session.Edited();
        const QStringList are = session.Figures(curve);
        const int writes = CountCalls(kWriteCall);

        QVERIFY(session.Choose(Qt::Key_D));
        QCOMPARE(session.Words(), QString("Thin lines: DUT."));
        QCOMPARE(session.plot.Curves().size(), 2 * session.what.curves);
        QCOMPARE(session.Figures(curve + " (DUT)"), were);
        QCOMPARE(session.Figures(curve), are);
        QCOMPARE(session.Edited(), edited);
        QCOMPARE(CountCalls(kWriteCall), writes);
        QVERIFY(session.plot.LegendEntry(2 * session.what.curves - 1));

        QVERIFY(session.Choose(Qt::Key_N));
        QCOMPARE(session.plot.Curves().size(), session.what.curves);
        QCOMPARE(session.Words(), QString());
    }

    void aFileStandsBesideThePage_data() { PlottedPages(); }
    void aFileStandsBesideThePage()
    {
        QFETCH(int, plotted);
        CPlottedSession session(plotted);
        QVERIFY(session.IsReady());
        const QString curve = session.Curve();
        const QStringList were = session.Figures(curve);
        const QString file = m_folder.filePath(QString("golden%1.ini").arg(plotted));
        QVERIFY(session.Run(kExport, file));
        session.Edit("27");
        QVERIFY(WaitUntil([&] { return session.Figures(curve) != were; }));
        QVERIFY(session.ChooseFile(file));
        const QString name = QString("golden%1.ini").arg(plotted);
        QCOMPARE(session.Words(), QString("Thin lines: %1.").arg(name));
        QCOMPARE(session.Figures(QString("%1 (%2)").arg(curve, name)), were);
        QCOMPARE(session.Edited().toDouble(), 27.0);
    }

    void thePageCanBeEditedOnBesideIt()
    {
        CPlottedSession session;
        QVERIFY(session.IsReady() && session.Choose(Qt::Key_D));
        const QString curve = session.Curve();
        const QStringList dut = session.Figures(curve + " (DUT)");
        QCOMPARE(dut, session.Figures(curve));
        session.Edit("28");
        QVERIFY(session.plot.Shows(curve, "Maximum", "28.000"));
        QCOMPARE(session.Figures(curve + " (DUT)"), dut);
    }

    void itFollowsTheSelection()
    {
        CPlottedSession session;
        QVERIFY(session.IsReady() && session.Choose(Qt::Key_D));
        const QString curve = session.Curve();
        session.Edit("28");
        QVERIFY(session.plot.Shows(curve, "Maximum", "28.000"));
        session.Select("powerMode", "LPM");
        QVERIFY(WaitUntil([&] { return session.plot.Figure(curve, "Maximum") != "28.000"; }));
        QCOMPARE(session.Figures(curve + " (DUT)"), session.Figures(curve));
        session.Select("powerMode", "HPM");
        QVERIFY(session.plot.Shows(curve, "Maximum", "28.000"));
        QVERIFY(session.Figures(curve + " (DUT)") != session.Figures(curve));
    }

    void aFileWithoutTheRecordIsTold()
    {
        CPlottedSession session(1);
        QVERIFY(session.IsReady());
        const QString file = m_folder.filePath("all.ini");
        QVERIFY(session.Run(kExport, file));
        QFile all(file);
        QVERIFY(all.open(QIODevice::ReadOnly));
        QByteArray text = all.readAll();
        all.close();
        // The sections but the last one are of other names then.
        const int last = text.lastIndexOf("\n[");
        QVERIFY(last > 0);
        text = text.left(last).replace("[", "[Other ") + text.mid(last);
        QVERIFY(all.open(QIODevice::WriteOnly) && all.write(text) == text.size());
        all.close();
        QVERIFY(session.ChooseFile(file));
        QCOMPARE(session.Words(), QString("all.ini has no data of what the page has selected."));
        QCOMPARE(session.plot.Curves().size(), session.what.curves);
    }

    void whatCannotBeReadIsToldAndTheLastOneStays()
    {
        CPlottedSession session;
        QVERIFY(session.IsReady() && session.Choose(Qt::Key_D));
        const QStringList curves = session.plot.Curves();
        CBoxWatcher boxes;
        const QString path = m_folder.filePath("none.ini");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[Other]\r\nKey = 1\r\n") > 0);
        file.close();
        QVERIFY(session.ChooseFile(path));
        QVERIFY2(session.Words().startsWith("none.ini could not be read. "),
                 qPrintable(session.Words()));
        VondSim_AddFault(
            R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 4})");
        QVERIFY(session.Choose(Qt::Key_D));
        VondSim_ClearFaults();
        QVERIFY2(session.Words().startsWith("DUT could not be read. "),
                 qPrintable(session.Words()));
        QCOMPARE(session.plot.Curves(), curves);
        QCOMPARE(boxes.Seen().size(), 0);
        QVERIFY(session.Run(kRead));
    }

    void theWindowLivesWhileTheDutIsRead()
    {
        CPlottedSession session;
        QVERIFY(session.IsReady());
        VondSim_Hold(kReadCall);
        auto *dut = session.plot.Window()->findChild<QAction *>("m_actionCompareDut");
        dut->trigger();
        QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000) != 0);
        QCOMPARE(session.Words(), QString("Reading DUT..."));
        QVERIFY(!session.IsAnyButtonOn());
        // The window can be used, and asks nothing more.
        session.plot.Press("m_zoomIn");
        dut->trigger();
        QCOMPARE(session.Words(), QString("The page is busy. Compare when it has ended."));
        session.plot.Window()->close();
        VondSim_Release(kReadCall);
        QVERIFY(WaitUntil([&] { return session.IsIdle(); }));
        QVERIFY(session.plot.Open());
        QVERIFY(WaitUntil([&] { return session.plot.Curves().size() == 32; }));
    }

    void resetAndUnloadWhileTheDutIsRead_data()
    {
        QTest::addColumn<bool>("isUnload");
        QTest::newRow("reset") << false;
        QTest::newRow("unload") << true;
    }
    void resetAndUnloadWhileTheDutIsRead()
    {
        QFETCH(bool, isUnload);
        CPlottedSession session;
        QVERIFY(session.IsReady());
        const QPointer<QWidget> window(session.plot.Window());
        VondSim_Hold(kReadCall);
        session.plot.Window()->findChild<QAction *>("m_actionCompareDut")->trigger();
        QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000) != 0);
        if (isUnload)
            session.Unload();
        else
            session->ResetPlugin();
        VondSim_Release(kReadCall);
        QVERIFY(WaitUntil([&] { return window.isNull(); }));
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }

    void resetWhileTheFileIsChosen()
    {
        CPlottedSession session;
        QVERIFY(session.IsReady());
        const QPointer<QWidget> window(session.plot.Window());
        // The dialog takes only what is there.
        const QString path = m_folder.filePath("chosen.ini");
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        AnswerFileDialog(path, [&](QFileDialog *) { session->ResetPlugin(); });
        session.plot.Window()->findChild<QAction *>("m_actionCompareFile")->trigger();
        QVERIFY(WaitUntil([&] { return window.isNull(); }));
    }

private:
    QTemporaryDir m_folder;
};

QUORLIN_TEST_CLASS(PlotComparisonTest)
#include "PlotComparisonTest.moc"
