// A turn of the wheel over what has no focus changes no value, on any page.
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QTabBar>
#include <QTableWidget>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr const char *kPages[] = {
    "CNrContRxDockWidgetV7",        "CNrRssiDockWidgetV7",          "CNrRxPathlossDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",     "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7", "CNrAptProfileDockWidgetV7",
};

// As the window system sends it, which is when Qt hands out the focus.
void TurnWheel(QWidget *over, int notches)
{
    QWidget *window = over->window();
    const QPoint at = over->mapTo(window, over->rect().center());
    QWheelEvent wheel(at, window->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    QCoreApplication::sendEvent(window->windowHandle(), &wheel);
}

void TurnWheelAt(QWidget *widget, int notches)
{
    const QPointF at = widget->rect().center();
    QWheelEvent wheel(at, widget->mapToGlobal(at.toPoint()), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    QCoreApplication::sendEvent(widget, &wheel);
}

bool IsSelector(const QWidget *widget)
{
    return widget->objectName().startsWith("calDataIf_config_");
}

// What the editors of a page show, those of a table cell by cell.
QStringList Shown(const QWidget *page)
{
    QStringList texts;
    for (const auto *box : page->findChildren<QAbstractSpinBox *>())
        texts.append(box->text());
    for (const auto *box : page->findChildren<QComboBox *>())
        texts.append(IsSelector(box) ? QString() : box->currentText());
    for (const auto *bar : page->findChildren<QTabBar *>())
        texts.append(QString::number(bar->currentIndex()));
    return texts;
}

}  // namespace

class CStrayWheelTest : public QObject
{
    Q_OBJECT

private slots:
    void wheelWithoutFocusChangesNoValue_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : kPages)
            QTest::newRow(page) << QString(page);
    }

    void wheelWithoutFocusChangesNoValue()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        if (QWidget *focus = QApplication::focusWidget())
            focus->clearFocus();
        const QStringList before = Shown(session.Page());
        QList<QWidget *> editors;
        for (auto *box : session.Page()->findChildren<QAbstractSpinBox *>())
            editors.append(box);
        for (auto *box : session.Page()->findChildren<QComboBox *>()) {
            if (!IsSelector(box))
                editors.append(box);
        }
        for (auto *bar : session.Page()->findChildren<QTabBar *>())
            editors.append(bar);
        QVERIFY(!editors.isEmpty());
        for (QWidget *editor : qAsConst(editors)) {
            QVERIFY2(!editor->testAttribute(Qt::WA_SetPalette) ||
                         editor->focusPolicy() != Qt::WheelFocus,
                     qPrintable(editor->objectName()));
            if (!editor->isVisible() || !editor->isEnabled())
                continue;
            for (int notches : {-3, 3, 1}) {
                TurnWheelAt(editor, notches);
                QVERIFY2(!editor->hasFocus(), qPrintable(editor->objectName()));
            }
        }
        QCOMPARE(Shown(session.Page()), before);
    }

    void wheelOverTheTabsLeavesARunningTestAlone()
    {
        CPluginSession session("handset", 1, "CNrContRxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Cont Rx start..."));
        for (auto *bar : session.Window()->findChildren<QTabBar *>()) {
            const int current = bar->currentIndex();
            for (int notches : {-1, 1})
                TurnWheelAt(bar, notches);
            QCOMPARE(bar->currentIndex(), current);
        }
        QCoreApplication::processEvents();
        QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r"), 0);
    }

    void wheelOverALossScrollsThePageAndLeavesTheFocus()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        auto *first = qobject_cast<QAbstractSpinBox *>(table->cellWidget(0, 0));
        auto *other = qobject_cast<QAbstractSpinBox *>(table->cellWidget(1, 1));
        first->setFocus();
        QVERIFY(first->hasFocus());
        TurnWheel(other, -3);
        QCOMPARE(other->text(), QString("0.00000"));
        QVERIFY(first->hasFocus());
        TurnWheelAt(first, 1);  // the focus is what makes the difference
        QCOMPARE(first->text(), QString("0.03125"));
    }

    void selectorOfACalibrationPageKeepsItsWheel()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *mode = session.Find<QComboBox>("calDataIf_config_group1_memberProperty_powerMode");
        QCOMPARE(mode->currentText(), QString("HPM"));
        TurnWheelAt(mode, -1);
        QCOMPARE(mode->currentText(), QString("LPM"));
        QVERIFY(!mode->hasFocus());
    }
};

QUORLIN_TEST_CLASS(CStrayWheelTest)
#include "StrayWheelTest.moc"
