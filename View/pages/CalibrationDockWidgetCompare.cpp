// Compare, Guarded Write and the plot of a calibration page: what they get of the page.
#include "View/pages/CalibrationDockWidget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTabWidget>
#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/compare/CalCompare.h"
#include "View/editors/LateEditors.h"
#include "View/editors/ScrollIntoView.h"
#include "View/engine/TableGroup.h"
#include "View/plots/CalibrationPlot.h"
#include "View/plots/PlotAction.h"
#include "View/plots/SecondImage.h"

namespace {

// Brings the tab that a widget stands on to the front.
void ShowTabOf(QWidget *widget)
{
    for (QWidget *page = widget; page && page->parentWidget(); page = page->parentWidget()) {
        QWidget *const stack = page->parentWidget();
        if (auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget());
            tabs && tabs->indexOf(page) >= 0)
            tabs->setCurrentWidget(page);
    }
}

}  // namespace

SComparePage CCalibrationDockWidget::ComparePage()
{
    const auto turn = [this](bool isOn) {
        SetButtonsEnabled(isOn);
        m_form.contents->setEnabled(isOn);
    };
    return {
        .widget = this,
        .item = m_page.item,
        .viewCtrl = m_viewCtrl.get(),
        .begin =
            [this, turn] {
                return m_modelReady && !HasRequest() && BeginRequest([turn] { turn(false); });
            },
        .end = [this, turn] { return EndRequest([turn] { turn(true); }); },
        .document = [this] { return PackageDocument(); },
        .shown = [this] { return PackagedCopy(); },
        .say = [this](const QString &text) { emit Signal_UpdateStatus(text); },
        .showProgress = [this](int done, int all) { Progress().Show(done, all); },
        .showBox = [this](int kind, const QString &title, const QString &text,
                          const QString &detail) { ShowBox(kind, title, text, detail); },
        .goTo = [this](const SCalCellPlace &place,
                       const std::function<void()> &notShown) { GoTo(place, notShown); },
    };
}

void CCalibrationDockWidget::AddCompare(QAbstractButton *compare, QAbstractButton *guardedWrite)
{
    auto *const commands = new CCalCompare(ComparePage());
    commands->AddActions(compare, guardedWrite);
}

void CCalibrationDockWidget::AddPlot(const SCalibrationCurves &curves)
{
    AddPlotAction(this, new CCalibrationPlot(this, curves, new CSecondImage(ComparePage())));
}

bool CCalibrationDockWidget::Select(const SCalCellPlace &place)
{
    QStringList selection = Selection();
    int at = 0;
    for (const QWidget *selector : m_form.selectors) {
        if (!qobject_cast<const QComboBox *>(selector))
            continue;
        for (const auto &[member, text] : place.selection) {
            if (MemberKey(PathFromObjectName(selector->objectName())) == member)
                selection[at] = text;
        }
        ++at;
    }
    return ShowSelection(selection);
}

// A table is named after one of its members; its rows are the group's members.
QWidget *CCalibrationDockWidget::EditorOf(const SCalCellPlace &place) const
{
    if (QWidget *alone = Index().Find(place.member); alone && !qobject_cast<QTableWidget *>(alone))
        return alone;
    const QString group = GroupPrefix(place.member);
    for (QWidget *widget : Index().BoundWidgets()) {
        auto *table = qobject_cast<QTableWidget *>(widget);
        if (!table || GroupPrefix(PathFromObjectName(table->objectName())) != group)
            continue;
        EnsureEditors(table);
        const int row =
            STableGroup(m_dataModel, place.member).rows.indexOf(MemberKey(place.member));
        return table->cellWidget(row, place.column);
    }
    return nullptr;
}

// A page behind another tab is off, its selectors follow nobody: it comes to the front first, which
// takes a turn of the event loop.
void CCalibrationDockWidget::GoTo(const SCalCellPlace &place, const std::function<void()> &notShown)
{
    if (!m_modelReady || HasRequest())
        return;
    const auto show = [this, place, notShown] {
        if (!m_modelReady || HasRequest() || !ShowPlace(place))
            notShown();
    };
    window()->activateWindow();
    if (isEnabled() && isVisible() && !visibleRegion().isEmpty()) {
        show();
        return;
    }
    delete m_goesTo;
    m_goesTo = new QObject(this);
    connect(
        this, &QDockWidget::visibilityChanged, m_goesTo,
        [this, show](bool isVisible) {
            m_goesTo->deleteLater();
            if (isVisible && isEnabled())
                show();
        },
        Qt::QueuedConnection);
    raise();
}

bool CCalibrationDockWidget::ShowPlace(const SCalCellPlace &place)
{
    if (!Select(place))
        return false;
    QWidget *const editor = place.member.isEmpty() ? nullptr : EditorOf(place);
    if (!editor)
        return false;
    ShowTabOf(editor);
    editor->setFocus(Qt::OtherFocusReason);
    QWidget *const around = editor->parentWidget()->parentWidget();
    ScrollIntoView(editor, qobject_cast<QTableWidget *>(around));
    return true;
}
