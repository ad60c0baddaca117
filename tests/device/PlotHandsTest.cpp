// A plot in the hands of a person: by the mouse, and by the keyboard alone.
#include <QClipboard>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/PlotSession.h"
#include "tests/device/RsrpSession.h"

namespace {

constexpr int kFetches = 8;

// QTest's own wait takes a window for active whose parent is.
bool IsActive(QWidget *window)
{
    window->activateWindow();
    return WaitUntil([window] { return QApplication::activeWindow() == window; }, 5000);
}

// A running RSRP page with reports, its plot open and active.
class CPlottedReports : public CRsrpSession
{
public:
    CPlottedReports() : CRsrpSession("Force"), plot(*this) {}

    bool IsReady()
    {
        if (!Running() || !plot.Open())
            return false;
        for (int i = 0; i < kFetches; ++i) {
            if (!Fetch())
                return false;
        }
        return IsActive(plot.Window()) && ShowsAll();
    }
    bool ShowsAll() const { return plot.Shows("RSRP0", "Points", QString::number(Rows())); }
    bool ShowsFewer() const
    {
        return WaitUntil([this] { return plot.Figure("RSRP0", "Points").toInt() < Rows(); });
    }
    double CursorAt(const char *column) const { return plot.Figure("Cursors", column).toDouble(); }
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QWidget *focus = plot.Window()->focusWidget();
        QTest::keyClick(focus ? focus : plot.Window(), static_cast<Qt::Key>(key), modifiers);
    }
    // Goes there by Tab alone; false when that never comes.
    bool TabTo(const QWidget *widget) const
    {
        for (int i = 0; i < 100 && plot.Window()->focusWidget() != widget; ++i)
            Key(Qt::Key_Tab);
        return plot.Window()->focusWidget() == widget;
    }
    void Drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint from, QPoint to) const
    {
        QWidget *canvas = plot.Canvas();
        QTest::mousePress(canvas, button, modifiers, from);
        for (int step = 1; step <= 4; ++step) {
            const QPoint at = from + (to - from) * step / 4;
            QMouseEvent move(QEvent::MouseMove, at, canvas->mapToGlobal(at), Qt::NoButton, button,
                             modifiers);
            QApplication::sendEvent(canvas, &move);
        }
        QTest::mouseRelease(canvas, button, modifiers, to);
    }

    const CPlotHands plot;
};

}  // namespace

class PlotHandsTest : public QObject
{
    Q_OBJECT

private slots:
    void draggingPansAndNewReportsStayOutOfView_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("middle button") << int(Qt::MiddleButton) << int(Qt::NoModifier);
        QTest::newRow("Ctrl and the left one") << int(Qt::LeftButton) << int(Qt::ControlModifier);
    }
    void draggingPansAndNewReportsStayOutOfView()
    {
        QFETCH(int, button);
        QFETCH(int, modifiers);
        CPlottedReports session;
        QVERIFY(session.IsReady());
        const int width = session.plot.Canvas()->width();
        session.Drag(static_cast<Qt::MouseButton>(button),
                     static_cast<Qt::KeyboardModifiers>(modifiers), QPoint(width / 4, 50),
                     QPoint(width * 3 / 4, 50));
        QVERIFY(session.ShowsFewer());
        const QString shown = session.plot.Figure("RSRP0", "Points");
        QVERIFY(shown.toInt() > 0);
        QVERIFY(session.Fetch());
        QVERIFY(session.plot.Shows("RSRP0", "Points", shown));
    }

    void theWheelGoesInAndOutAgainAroundTheMouse()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        const QPointF at(5, session.plot.Canvas()->height() / 2);
        const auto turn = [&](int notches) {
            QWheelEvent wheel(at, session.plot.Canvas()->mapToGlobal(at.toPoint()), {},
                              {0, 120 * notches}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(session.plot.Canvas(), &wheel);
        };
        turn(5);
        QVERIFY(session.ShowsFewer());
        turn(-5);
        QVERIFY(session.ShowsAll());
    }

    void aCursorIsDragged()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        session.plot.Press("m_cursors");
        QVERIFY(WaitUntil([&] { return session.plot.Curves().value(0) == "Cursors"; }));
        const double a = session.CursorAt("At A");
        const double b = session.CursorAt("At B");
        QVERIFY(a < b);
        // The cursors stand at the thirds of the view.
        const int width = session.plot.Canvas()->width();
        session.Drag(Qt::LeftButton, Qt::NoModifier, QPoint(width / 3, 30), QPoint(width / 6, 30));
        QVERIFY(WaitUntil([&] { return session.CursorAt("At A") < a; }));
        QCOMPARE(session.CursorAt("At B"), b);
        QVERIFY(session.ShowsAll());
    }

    void keysMoveTheCursors()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        session.Key(Qt::Key_Right, Qt::ControlModifier);  // no cursor yet: nothing moves
        session.Key(Qt::Key_C, Qt::AltModifier);
        QVERIFY(WaitUntil([&] { return session.plot.Curves().value(0) == "Cursors"; }));
        const double a = session.CursorAt("At A");
        const double b = session.CursorAt("At B");
        for (int step = 0; step < 20; ++step) {
            session.Key(Qt::Key_Left, Qt::ControlModifier);
            session.Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        }
        QVERIFY(WaitUntil(
            [&] { return session.CursorAt("At A") < a && session.CursorAt("At B") > b; }));
        for (int step = 0; step < 20; ++step) {
            session.Key(Qt::Key_Right, Qt::ControlModifier);
            session.Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        }
        QVERIFY(WaitUntil([&] {
            return std::fabs(session.CursorAt("At A") - a) < 0.002 &&
                   std::fabs(session.CursorAt("At B") - b) < 0.002;
        }));
    }

    void keysZoomPanAndShowAll()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        session.Key(Qt::Key_I, Qt::AltModifier);
        QVERIFY(session.ShowsFewer());
        session.Key(Qt::Key_O, Qt::AltModifier);
        QVERIFY(session.ShowsAll());
        session.Key(Qt::Key_L, Qt::AltModifier);
        QVERIFY(session.ShowsFewer());
        session.Key(Qt::Key_R, Qt::AltModifier);
        QVERIFY(session.ShowsAll());
        session.Key(Qt::Key_I, Qt::AltModifier);
        QVERIFY(session.ShowsFewer());
        session.Key(Qt::Key_0, Qt::ControlModifier);
        QVERIFY(session.ShowsAll());
    }

    void tabReachesEveryButtonTheLegendAndTheFigures()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        for (const char *name : {"m_showAll", "m_zoomIn", "m_zoomOut", "m_left", "m_right",
                                 "m_cursors", "m_clear", "m_copy", "m_save", "m_figures"})
            QVERIFY2(session.TabTo(session.plot.Window()->findChild<QWidget *>(name)), name);
        QWidget *entry = session.plot.LegendEntry(1);
        QVERIFY(session.TabTo(entry));
        session.Key(Qt::Key_Space);
        QVERIFY(WaitUntil([&] { return !session.plot.Curves().contains("RSRP1"); }));
        QVERIFY(session.plot.Curves().contains("RSRP0"));
        session.Key(Qt::Key_Space);
        QVERIFY(WaitUntil([&] { return session.plot.Curves().contains("RSRP1"); }));
    }

    void keysCopySaveAndClose()
    {
        CPlottedReports session;
        QVERIFY(session.IsReady());
        QGuiApplication::clipboard()->clear();
        session.Key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());
        const QTemporaryDir folder;
        for (const char *file : {"plot.png", "plot.svg", "plot.pdf"}) {
            QVERIFY(IsActive(session.plot.Window()));
            AnswerFileDialog(folder.filePath(file));
            session.Key(Qt::Key_S, Qt::ControlModifier);
            QVERIFY2(QFileInfo(folder.filePath(file)).size() > 5000, file);
        }
        QVERIFY(IsActive(session.plot.Window()));
        session.Key(Qt::Key_Escape);
        QVERIFY(WaitUntil([&] { return !session.plot.Window()->isVisible(); }));
        // The page opens it again by its key.
        QVERIFY(IsActive(session.Window()));
        QTest::keyClick(session.Window(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(WaitUntil([&] { return session.plot.Window()->isVisible(); }));
    }

    void enterInTheFiguresGoesToTheCellAtTheCursor()
    {
        CCalibrationSession session(kAptPage);
        QVERIFY(session.ShowAndWait() && session.Run(kRead));
        const CPlotHands plot(session);
        QVERIFY(plot.Open());
        QVERIFY(WaitUntil([&] { return plot.Curves().size() == 3; }));
        auto *figures = plot.Window()->findChild<QTableWidget *>("m_figures");
        QVERIFY(IsActive(plot.Window()));
        figures->setFocus();
        figures->setCurrentCell(1, 0);
        QTest::keyClick(figures, Qt::Key_Return);
        const QTableWidget *gains = session.Table(7, "paHighPaGain");
        // The lowest frequency stands in one of the columns of the curve's row.
        const auto columnWithFocus = [&] {
            for (int c = 0; c < gains->columnCount(); ++c) {
                if (gains->cellWidget(1, c) &&
                    gains->cellWidget(1, c)->window()->focusWidget() == gains->cellWidget(1, c))
                    return c;
            }
            return -1;
        };
        QVERIFY(WaitUntil([&] { return columnWithFocus() >= 0; }));
        const QTableWidget *frequencies = session.Table(12, "ulFreq");
        const auto frequency = [&](int c) {
            return qobject_cast<QAbstractSpinBox *>(frequencies->cellWidget(0, c))->text().toInt();
        };
        for (int c = 0; c < gains->columnCount(); ++c)
            QVERIFY(frequency(c) == 0 || frequency(columnWithFocus()) <= frequency(c));
    }
};

QUORLIN_TEST_CLASS(PlotHandsTest)
#include "PlotHandsTest.moc"
