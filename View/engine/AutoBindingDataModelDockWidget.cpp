#include "View/engine/AutoBindingDataModelDockWidget.h"

#include <utility>

#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPointer>
#include <QSpinBox>

#include "Model/JsonPath.h"
#include "Model/ModelCopy.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/BoxText.h"
#include "Support/Log.h"
#include "View/editors/FormFont.h"
#include "View/engine/Binding.h"
#include "View/engine/ContextMenu.h"
#include "View/engine/RangeCheck.h"
#include "View/engine/TableSize.h"
#include "View/engine/Walk.h"

namespace {

const QLatin1String
    kHyphens("---------------------------------------------------------------------------");

const QLatin1String kLineBreak("<br>");  // the box shows its text as rich text

// Qt's JSON keeps the bytes of overwritten strings, so a document that is packaged for days is made
// anew now and then.
constexpr int kPackagesBetweenRenewals = 256;

const SChangeReason kByRangeCheck = {.key = QStringLiteral("range check")};

void LogFramed(const char *words, const QString &title)
{
    qCDebug(lcEngine) << kHyphens.data();
    qCDebug(lcEngine) << words << title;
    qCDebug(lcEngine) << kHyphens.data();
}

void LogPackaged(const std::string &text)
{
    qCDebug(lcEngine) << "============ [Done] Package MemberValue ============ " << text.c_str();
}

// Qt makes an event of the menu key alone.
bool IsMenuKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
}

QString CheckText(int state)
{
    return state == Qt::Checked ? QStringLiteral("true") : QStringLiteral("false");
}

}  // namespace

CAutoBindingDataModelDockWidget::CAutoBindingDataModelDockWidget(QWidget *parent)
    : QDockWidget(parent)
{
    // The editors' texts go into documents: a decimal point, whatever the user's language.
    setLocale(QLocale::c());
    m_messageBox.SetOwner(this);
}

// The mouse does nothing in a page's title area, but for the double click.
bool CAutoBindingDataModelDockWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::NonClientAreaMouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
        return false;
    case QEvent::ContextMenu: {
        const auto *menu = static_cast<QContextMenuEvent *>(event);
        QWidget *under = childAt(menu->pos());
        const bool isOpen = menu->reason() == QContextMenuEvent::Keyboard
                                ? OpenContextMenuByKey()
                                : OpenContextMenu(under ? under : this, menu->globalPos());
        return isOpen || QDockWidget::event(event);
    }
    case QEvent::KeyPress:
        return IsMenuKey(static_cast<QKeyEvent *>(event)) ? OpenContextMenuByKey()
                                                          : QDockWidget::event(event);
    case QEvent::WindowActivate:
        KeepFocusFromWandering();
        return QDockWidget::event(event);
    default:
        return QDockWidget::event(event);
    }
}

// A page starts working when it is first shown, not when it is built.
void CAutoBindingDataModelDockWidget::showEvent(QShowEvent *)
{
    if (m_initStarted)
        return;
    m_initStarted = true;
    StartInit();
}

void CAutoBindingDataModelDockWidget::StartInit()
{
    emit Signal_UpdateStatus(QLatin1String("Start Init: ") + windowTitle(), 0);
    LogFramed(" Start Init the page: ", windowTitle());
    setStyleSheet(QStringLiteral("QGroupBox::title { color: rgb(32, 81, 124);}"));
    m_modelInterface = GetModelInterface();
    m_rootWidget = GetRootWidget();
    m_index = CWidgetIndex(m_rootWidget);
    const QList<QWidget *> widgets = AllWidgets();
    m_wheel.GuardAll(widgets);
    for (QWidget *widget : widgets)
        LeaveMenuToPage(widget);
    RequestDataModel();
}

void CAutoBindingDataModelDockWidget::Slot_GetDataModelDone(std::string dataModelStr)
{
    if (dataModelStr.empty()) {
        qCDebug(lcEngine) << "Without any INIT info, Data Model is empty STRING format.";
        SetGroupBoxFonts(AllWidgets());
    } else {
        m_dataModel = DocumentOf(dataModelStr);
        InitWidget();
        m_modelReady = true;
        const QPointer<CAutoBindingDataModelDockWidget> self(this);
        CheckDateModelIntegrity(m_dataModel);
        if (!self)
            return;
    }
    LogFramed(" Init Done: ", windowTitle());
    emit Signal_InitDone();
}

void CAutoBindingDataModelDockWidget::InitWidget()
{
    qCDebug(lcEngine) << "============ [Start] Init widget ============ ";
    const QList<QWidget *> widgets = AllWidgets();
    SetGroupBoxFonts(widgets);
    InitMembers(BindingOf(m_dataModel, m_dataModel), widgets);
    qCDebug(lcEngine) << "============ [Done] Init widget ============ ";
}

SBinding CAutoBindingDataModelDockWidget::BindingOf(QJsonObject &document,
                                                    const QJsonObject &update)
{
    return {
        .document = document,
        .update = update,
        .modelInterface = m_modelInterface,
        .index = m_index,
        .page = *this,
        .edits = m_edits,
        .changes = m_changes,
    };
}

void CAutoBindingDataModelDockWidget::UpdateWidget(QJsonObject update)
{
    m_modelReady = false;
    {
        const CChangeScope scope(&m_changes, {.cause = EChangeCause::Result});
        Walk(kUpdateWalk, BindingOf(m_dataModel, update));
    }
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    CheckDateModelIntegrity(update);
    if (self)
        m_modelReady = true;
}

void CAutoBindingDataModelDockWidget::AppendWidget(QJsonObject update)
{
    const CChangeScope scope(&m_changes, {.cause = EChangeCause::Result});
    Walk(kAppendWalk, BindingOf(m_dataModel, update));
}

std::string CAutoBindingDataModelDockWidget::PackageMemberValue()
{
    Package();
    const std::string text = ModelToText(m_dataModel);
    LogPackaged(text);
    return text;
}

QJsonObject CAutoBindingDataModelDockWidget::PackageDocument()
{
    Package();
    if (lcEngine().isDebugEnabled())
        LogPackaged(ModelToText(m_dataModel));
    return m_dataModel;
}

void CAutoBindingDataModelDockWidget::Package()
{
    FinishEdit();
    Walk(kPackageWalk, BindingOf(m_dataModel, m_dataModel));
    if (++m_packageCount % kPackagesBetweenRenewals == 0)
        m_dataModel = CopyModel(m_dataModel);
}

// What the walk writes goes into a copy: reading a page leaves its document as it is.
QString CAutoBindingDataModelDockWidget::DocumentText()
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    if (!self || m_dataModel.isEmpty())
        return {};
    return QString::fromStdString(ModelToText(PackagedCopy()));
}

QJsonObject CAutoBindingDataModelDockWidget::PackagedCopy()
{
    QJsonObject document = m_dataModel;
    Walk(kPackageWalk, BindingOf(document, document));
    return document;
}

QJsonObject CAutoBindingDataModelDockWidget::DocumentOf(const std::string &text)
{
    return ModelFromText(text);
}

void CAutoBindingDataModelDockWidget::ChangeCells(const QString &name, const CellChanges &changes)
{
    FinishEdit();
    const CChangeScope scope(&m_changes, {.cause = EChangeCause::User, .key = name});
    SetCells(changes);
}

void CAutoBindingDataModelDockWidget::ShowRefusal(const QString &command, const QString &reason)
{
    const QString text = command + QLatin1String(": ") + reason;
    emit Signal_UpdateStatus(text);
    const QString plain = BoxText(text);
    QMetaObject::invokeMethod(
        this,
        [this, command, plain] { m_messageBox.Show(eBoxWarningAsIs, command, plain, {}, {}, -1); },
        Qt::QueuedConnection);
}

void CAutoBindingDataModelDockWidget::Slot_ValueChange(QString currentText)
{
    Publish(ERelevance::Value, currentText);
}

void CAutoBindingDataModelDockWidget::Slot_EnableStatusChange(QString currentText)
{
    Publish(ERelevance::Status, currentText);
}

void CAutoBindingDataModelDockWidget::Slot_CheckBoxValueChange(int state)
{
    qCDebug(lcEngine) << "============ [Value Relevance]Check Box  =========== " << state;
    Slot_ValueChange(CheckText(state));
}

void CAutoBindingDataModelDockWidget::Slot_CheckBoxEnableStatusChange(int state)
{
    qCDebug(lcEngine) << "============ [Status Relevance]Check Box  =========== " << state;
    Slot_EnableStatusChange(CheckText(state));
}

void CAutoBindingDataModelDockWidget::Publish(ERelevance kind, const QString &currentText)
{
    const auto *publisher = qobject_cast<QWidget *>(sender());
    if (!CRelevance::Takes(kind, publisher, currentText))
        return;
    // What another widget sets off may give the editor new limits.
    if (!m_relevance.IsUnderWay() && publisher != m_edits.Editor())
        FinishEdit();
    m_relevance.Publish(kind, publisher, currentText);
}

void CAutoBindingDataModelDockWidget::Slot_RangeCheck()
{
    const CChangeScope scope(&m_changes, kByRangeCheck);
    if (auto *box = qobject_cast<QSpinBox *>(sender()); m_edits.TakeEnded(box))
        CheckRange(box);
}

void CAutoBindingDataModelDockWidget::Slot_PointRangeCheck()
{
    const CChangeScope scope(&m_changes, kByRangeCheck);
    if (auto *box = qobject_cast<QDoubleSpinBox *>(sender()); m_edits.TakeEnded(box))
        CheckRange(box);
}

void CAutoBindingDataModelDockWidget::CheckDateModelIntegrity(QJsonObject update)
{
    const QJsonValue integrity = GetJsonValue(update, QStringLiteral("modelIntegrity.integrity"));
    const QJsonValue messages = GetJsonValue(update, QStringLiteral("modelIntegrity.messageList"));
    const QJsonValue emptyModel = GetJsonValue(update, QStringLiteral("emptyModel"));
    if (HasJsonValue(update, QStringLiteral("modelIntegrity"))) {
        qCDebug(lcEngine) << "Check finish: find defined the modelIntegrity: remove it to avoid "
                             "unexpected failed!";
        update.remove(QStringLiteral("modelIntegrity"));
        m_dataModel.remove(QStringLiteral("modelIntegrity"));
    }
    qCDebug(lcEngine) << "CheckDateModelIntegrity ----- " << integrity << messages << emptyModel;

    if (IsJsonValueValid(integrity) || IsJsonValueValid(emptyModel)) {
        QString text;
        if (!integrity.toBool()) {
            text = QLatin1String("There are some error in this page:  ") +
                   windowTitle().toHtmlEscaped() + kLineBreak;
            for (const QJsonValue &message : messages.toArray())
                text += message.toString().toHtmlEscaped() + kLineBreak;
        } else if (IsJsonValueValid(emptyModel)) {
            text = QStringLiteral("This is empty data to update.");
        }
        if (!text.isEmpty()) {
            ShowErrorBox(text);
            return;
        }
    }
    qCDebug(lcEngine) << "CheckDateModelIntegrity -- Update DataMode -- ";
    m_dataModel = update;
}

void CAutoBindingDataModelDockWidget::ShowErrorBox(const QString &text)
{
    const auto show = [this, text] {
        m_messageBox.Show(eBoxCritical, QStringLiteral("Error"), text, {}, {}, -1);
    };
    if (m_boxesWait)
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    else
        show();
}

void CAutoBindingDataModelDockWidget::FinishEdit()
{
    m_edits.Finish();
}

void CAutoBindingDataModelDockWidget::ShowItemResult(const QString &title,
                                                     const SEachItemOperationResult &result)
{
    const SStatusRow row = LookupStatus(result.status);
    m_messageBox.Show(row.level == eStatusError ? eBoxCritical : eBoxWarning, title, row.text,
                      result.message.isEmpty() ? row.advice : BoxText(result.message), {}, -1);
}

int CAutoBindingDataModelDockWidget::GetGroupType(const QString &memberPath)
{
    return GroupTypeOf(m_dataModel, memberPath);
}

QString CAutoBindingDataModelDockWidget::AbsoluteModelPath(const QString &relativePath) const
{
    return ::AbsoluteModelPath(relativePath, m_modelInterface == eInterfaceCmdIf);
}

QList<QWidget *> CAutoBindingDataModelDockWidget::AllWidgets() const
{
    return m_rootWidget ? m_rootWidget->findChildren<QWidget *>() : QList<QWidget *>();
}

void CAutoBindingDataModelDockWidget::SetGroupBoxFonts(const QList<QWidget *> &widgets)
{
    for (QWidget *box : widgets) {
        if (!ExactCast<QGroupBox>(box))
            continue;
        QFont font = FormFont(box->parentWidget());
        font.setWeight(QFont::Bold);
        box->setFont(font);
    }
}
