#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>

#include "Simulator/VondSim.h"
#include "tests/hands/seeds/PageDeeds.h"
#include "tests/hands/seeds/SeedActions.h"
#include "tests/hands/witness/PageReader.h"

namespace {

constexpr const char *kCalPages[] = {"CNrRxPathlossDockWidgetV7", "CNrAptProfileDockWidgetV7"};
constexpr const char *kCalFlows[] = {"m_btnUpload", "m_btnUpload", "m_btnDownload", "m_btnSave",
                                     "m_btnLoad"};
constexpr const char *kTestPages[] = {"CNrContRxDockWidgetV7",       "CNrRssiDockWidgetV7",
                                      "CNrRsrpForceDockWidgetV7",    "CNrRsrpNormalDockWidgetV7",
                                      "CNrSingleToneTxDockWidgetV7", "CNrPuschTxForcedDockWidgetV7",
                                      "CNrPuschTxNormalDockWidgetV7"};
constexpr const char *kTestFlows[] = {"m_start", "m_start", "m_start", "m_stop"};
constexpr const char *kActions[] = {
    "m_actionUndo",
    "m_actionUndo",
    "m_actionRedo",
    "m_actionExplain",
    "m_actionLog",
    "m_actionFillRight",
    "m_actionSetToZero",
    "m_actionCopyCells",
    "m_actionPasteCells",
    "m_actionInterpolate",
    "m_actionMarkAll",
    "m_actionSpreadChannels",
    "m_actionFloatPage",
    "m_actionExportGains",
    "m_actionNextPage",
    "m_actionRestoreSettings",
    "m_actionCompare",
    "m_actionTxPowerLimit",
    "m_actionEnterFrequency",
};

SDeed Trigger(CDesk &desk, CChance &chance, const char *action)
{
    return TriggerOn(desk, DrawPage(desk, chance), action);
}

}  // namespace

SDeed SaveSettings(CDesk &desk, CChance &chance)
{
    return Trigger(desk, chance, "m_actionSaveSettings");
}

SDeed LoadSettings(CDesk &desk, CChance &chance)
{
    return Trigger(desk, chance, "m_actionLoadSettings");
}

SDeed TriggerAction(CDesk &desk, CChance &chance)
{
    return Trigger(desk, chance, chance.Of(kActions));
}

// Of a calibration page or a test's.
SDeed PressFlow(CDesk &desk, CChance &chance)
{
    if (chance.OneIn(3))
        return PressOn(desk, RaisedPage(desk, chance.Of(kCalPages)), chance.Of(kCalFlows));
    return PressOn(desk, RaisedPage(desk, chance.Of(kTestPages)), chance.Of(kTestFlows));
}

// A value, typed over the one that is there.
SDeed EditCell(CDesk &desk, CChance &chance)
{
    QDockWidget *page = RaisedPage(desk, chance.Of(kCalPages));
    const QList<QDoubleSpinBox *> cells = SeenOn<QDoubleSpinBox>(page);
    if (cells.isEmpty())
        return {SDeed::Other, "no cell"};
    QPointer<QDoubleSpinBox> cell = chance.Of(cells);
    SDeed deed{SDeed::Other, "edit " + NameOf(cell)};
    desk.Click(cell, PlaceOn(cell));
    const Qt::Key digit = static_cast<Qt::Key>(Qt::Key_0 + chance.Below(10));
    const Qt::Key keys[] = {digit, Qt::Key_Period, Qt::Key_5, Qt::Key_Return};
    if (cell && cell->window()->isVisible())
        desk.Key(cell->window(), Qt::Key_A, Qt::ControlModifier);
    for (const Qt::Key key : keys) {
        if (cell && cell->window()->isVisible())
            desk.Key(cell->window(), key);
    }
    if (cell)
        deed.words += ": " + cell->text();
    return deed;
}

SDeed GuardedWrite(CDesk &desk, CChance &chance)
{
    desk.agrees = !chance.OneIn(4);
    SDeed deed = PressOn(desk, RaisedPage(desk, chance.Of(kCalPages)), "m_btnGuardedWrite");
    deed.words += desk.agrees ? ", yes" : ", no";
    return deed;
}

SDeed Compare(CDesk &desk, CChance &chance)
{
    QDockWidget *page = RaisedPage(desk, chance.Of(kCalPages));
    SDeed deed = PressOn(desk, page, "m_btnCompare");
    QList<QDialog *> windows = desk.Window()->findChildren<QDialog *>("CCompareWindow");
    if (windows.isEmpty())
        return deed;
    QDialog *window = chance.Of(windows);
    const QString file =
        desk.Folder() + '/' + (page ? page->objectName() : QString("no page")) + ".ini";
    for (const char *side : {"left", "right"}) {
        auto *kind = window->findChild<QComboBox *>(QString("m_%1Kind").arg(side));
        kind->setCurrentIndex(chance.Below(kind->count()));
        window->findChild<QLineEdit *>(QString("m_%1File").arg(side))->setText(file);
        deed.words += QString(", %1 %2").arg(side, kind->currentText());
    }
    auto *button = window->findChild<QPushButton *>("m_compare");
    if (button->isEnabled() && window->isVisible())
        button->click();
    return deed;
}

SDeed CloseToolWindows(CDesk &desk, CChance &chance)
{
    QList<QDialog *> open;
    for (QDialog *window : desk.Window()->findChildren<QDialog *>()) {
        if (window->isVisible() && !window->isModal())
            open.append(window);
    }
    if (open.isEmpty())
        return {SDeed::Other, "no window of the tool is open"};
    QDialog *window = chance.Of(open);
    const SDeed deed{SDeed::Other, "close " + window->objectName()};
    window->close();
    return deed;
}

// The next reports are due.
SDeed PassTime(CDesk &desk, CChance &chance)
{
    const int count = 1 + chance.Below(3);
    for (int i = 0; i < count; ++i) {
        TickReport(desk, chance);
        desk.Settle();
    }
    return {SDeed::Other, QString("%1 reports are due").arg(count)};
}
