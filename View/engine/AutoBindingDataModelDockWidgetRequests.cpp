// How a request of a page begins and ends, where the focus is meanwhile, and the page's menus.
#include "View/engine/AutoBindingDataModelDockWidget.h"

#include <QComboBox>
#include <QMenu>

#include "Model/JsonPath.h"
#include "Support/BoxText.h"
#include "View/editors/TabOrder.h"
#include "View/editors/TableMark.h"
#include "View/engine/ContextMenu.h"

bool CAutoBindingDataModelDockWidget::HasAllChoices()
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    if (!self)
        return false;
    const QString caption = FirstEmptyChoice();
    if (caption.isEmpty())
        return true;
    const QString text = caption + QLatin1String(" is empty.");
    Warn(text, text);
    return false;
}

void CAutoBindingDataModelDockWidget::ShowBox(int kind, const QString &title, const QString &text,
                                              const QString &detail)
{
    m_messageBox.Show(kind, title, text, {}, detail, -1);
}

void CAutoBindingDataModelDockWidget::Warn(const QString &status, const QString &text)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    emit Signal_UpdateStatus(status);
    if (self)
        ShowBox(eBoxWarningAsIs, status, BoxText(text));
}

// The caption of the first one, in the order of the document.
QString CAutoBindingDataModelDockWidget::FirstEmptyChoice() const
{
    const QString request = AbsoluteModelPath(QStringLiteral("request"));
    const QJsonObject groups = GetJsonValueConst(m_dataModel, request).toObject();
    for (const QString &group : groups.keys()) {
        const QJsonObject record = groups.value(group).toObject();
        const QJsonObject members = record.value(QLatin1String("memberProperty")).toObject();
        for (const QJsonValue &member : record.value(QLatin1String("memberList")).toArray()) {
            const QString path = request + QLatin1Char('.') + group +
                                 QLatin1String(".memberProperty.") + member.toString();
            const auto *box = ExactCast<QComboBox>(m_index.Find(path));
            const bool isAsked =
                box && box->isVisibleTo(this) && box->isEnabledTo(box->parentWidget());
            if (isAsked && box->currentIndex() < 0)
                return members.value(member.toString())
                    .toObject()
                    .value(QLatin1String("caption"))
                    .toString();
        }
    }
    return {};
}

// The check of what was typed may open a box, in which the page may be destroyed.
bool CAutoBindingDataModelDockWidget::BeginRequest(const std::function<void()> &turnOff)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    if (!self)
        return false;
    QWidget *focus = FocusWidget();
    if (focus || m_requests == 0)
        m_focus = focus;
    m_hasAsked = true;
    ++m_requests;
    turnOff();
    m_progress.Await();
    return BeginBusy();
}

bool CAutoBindingDataModelDockWidget::EndRequest(const std::function<void()> &turnOn)
{
    const bool isLast = m_requests > 0 && --m_requests == 0;
    turnOn();
    GiveFocusBack();
    if (isLast)
        m_progress.End();
    return EndBusy();
}

bool CAutoBindingDataModelDockWidget::BeginBusy()
{
    return SayBusy(true);
}

bool CAutoBindingDataModelDockWidget::EndBusy()
{
    return SayBusy(false);
}

bool CAutoBindingDataModelDockWidget::SayBusy(bool isBusy)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    const QWidget *const window = parentWidget();
    emit Signal_PluginIsBusy(isBusy);
    return self && parentWidget() == window;
}

// What has the focus in the page's window, if it is the page's own.
QWidget *CAutoBindingDataModelDockWidget::FocusWidget() const
{
    QWidget *focus = window()->focusWidget();
    return isAncestorOf(focus) ? focus : nullptr;
}

// Only if nothing has the focus: the user may have gone elsewhere. An input that is still off, as
// during a test, does not get it.
void CAutoBindingDataModelDockWidget::GiveFocusBack()
{
    if (m_focus && m_focus->isEnabled() && m_focus->isVisible() && !window()->focusWidget())
        m_focus->setFocus(Qt::OtherFocusReason);
}

// When a window becomes active, as after a box, and nothing has the focus, Qt gives it to the first
// control. The page gets it instead, which takes no keys.
void CAutoBindingDataModelDockWidget::KeepFocusFromWandering()
{
    if (m_hasAsked && isEnabled() && !window()->focusWidget())
        setFocus(Qt::OtherFocusReason);
}

bool CAutoBindingDataModelDockWidget::focusNextPrevChild(bool next)
{
    const QWidget *focus = FocusWidget();
    if (focus && !focus->isEnabled())
        return false;
    return MoveFocus(window(), next);
}

// Under the cell with the focus, which may be in a table that has it.
bool CAutoBindingDataModelDockWidget::OpenContextMenuByKey()
{
    QWidget *focus = FocusWidget();
    return focus && OpenContextMenu(focus, focus->mapToGlobal(focus->rect().center()));
}

// True also when the page is gone: the end of the edit under way may open a box.
bool CAutoBindingDataModelDockWidget::OpenContextMenu(QWidget *widget, const QPoint &globalPos)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    const QPointer<QWidget> place(widget);
    FinishEdit();
    if (!self || !place)
        return true;
    const SMenuPlace at = MenuPlaceOf(this, place);
    if (CTableMark *mark = at.table ? CTableMark::Of(at.table) : nullptr)
        mark->SetCurrent(at.table->indexAt(at.table->viewport()->mapFromGlobal(globalPos)));
    QMenu *menu = MakeContextMenu(
        at, m_edits, m_memberActions ? m_memberActions(at, globalPos) : QList<QAction *>());
    if (menu)
        menu->popup(globalPos);
    return menu || at.editor;
}
