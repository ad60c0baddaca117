#include "View/engine/AutoBindingDataModelDockWidget.h"

#include <QEvent>
#include <QGroupBox>
#include <QPointer>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "View/editors/FormFont.h"
#include "View/engine/WidgetIndex.h"

namespace {

const QLatin1String
    kHyphens("---------------------------------------------------------------------------");

const QLatin1String kLineBreak("<br>");  // the box shows its text as rich text

void LogFramed(const char *words, const QString &title)
{
    qCDebug(lcEngine) << kHyphens.data();
    qCDebug(lcEngine) << words << title;
    qCDebug(lcEngine) << kHyphens.data();
}

}  // namespace

CAutoBindingDataModelDockWidget::CAutoBindingDataModelDockWidget(QWidget *parent)
    : QDockWidget(parent)
{
    // Texts of the editors travel in documents, so a point is a point whatever the user's language.
    setLocale(QLocale::c());
    m_messageBox.SetOwner(this);
}

CAutoBindingDataModelDockWidget::CIndexScope::CIndexScope(CAutoBindingDataModelDockWidget *page)
    : m_page(page), m_isOutermost(page->m_index == nullptr)
{
    if (m_isOutermost)
        m_page->m_index = new CWidgetIndex(m_page->m_rootWidget);
}

CAutoBindingDataModelDockWidget::CIndexScope::~CIndexScope()
{
    if (!m_isOutermost)
        return;
    delete m_page->m_index;
    m_page->m_index = nullptr;
}

const CWidgetIndex *CAutoBindingDataModelDockWidget::CIndexScope::operator->() const
{
    return m_page->m_index;
}

// The mouse does nothing in a page's title area, but for the double click.
bool CAutoBindingDataModelDockWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::NonClientAreaMouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
        return false;
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
    m_wheel.GuardAll(AllWidgets());
    RequestDataModel();
}

void CAutoBindingDataModelDockWidget::Slot_GetDataModelDone(std::string dataModelStr)
{
    if (dataModelStr.empty()) {
        qCDebug(lcEngine) << "Without any INIT info, Data Model is empty STRING format.";
        SetGroupBoxFonts(AllWidgets());
    } else {
        m_dataModel = ModelFromText(dataModelStr);
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
                      result.message.isEmpty() ? row.advice : result.message, {}, -1);
}

int CAutoBindingDataModelDockWidget::GetGroupType(const QString &memberPath)
{
    const QString group = GroupPrefix(memberPath);
    return group.isEmpty() ? 0
                           : GetJsonValue(m_dataModel, group + QLatin1String("groupType")).toInt();
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
