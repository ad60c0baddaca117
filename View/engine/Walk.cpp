// The four walks of the binding engine.
#include <QGroupBox>
#include <QLabel>
#include <QPointer>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelText.h"
#include "Support/Log.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/GroupTypes.h"
#include "View/engine/WidgetIndex.h"

// What a walk says of itself.
struct SWalkWords
{
    const char *start;
    const char *member;
    const char *missing;
    const char *unsupported;
    const char *done;
    bool tellsClass;  // names the widget's class beside its name
};

namespace {

constexpr SWalkWords kUpdateWords = {
    "============ [Start] Update Widget  ============ ",
    "====== Update Widget: objName ======",
    "====== Failed to update: Cannot get its JSON ojbect ======",
    "====== Failed to update : Not support this group type yet ======",
    "============ [Done] Update Widget ============ ",
    false,
};

constexpr SWalkWords kAppendWords = {
    "============ [Start] Append Widget ============ ",
    "====== Append Widget: objName ======",
    "====== Failed to append: Cannot get its JSON ojbect ======",
    "====== Failed to append : Not support this group type yet ======",
    "============ [Done] Append Widget ============ ",
    false,
};

constexpr SWalkWords kPackageWords = {
    "============ [Start] Package MemberValue ============ ",
    "====== Packge MemberValue: objName ======",
    "====== Failed to packge: Cannot get its JSON ojbect ====== ",
    "====== Failed to packge : Not support this group type yet ======",
    nullptr,  // told with the text
    true,
};

// Qt's JSON keeps the bytes of overwritten strings, so a document that is packaged for days is made
// anew from its text now and then.
constexpr int kPackagesBetweenRenewals = 256;

bool IsResultMember(const QString &name)
{
    return IsResultName(name) && !IsCaptionName(name);
}

bool IsAnyMember(const QString &name)
{
    return !IsCaptionName(name);
}

}  // namespace

void CAutoBindingDataModelDockWidget::InitWidget()
{
    qCDebug(lcEngine) << "============ [Start] Init widget ============ ";
    const QList<QWidget *> widgets = AllWidgets();
    SetGroupBoxFonts(widgets);
    const CIndexScope index(this);
    for (QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (!IsBoundName(name)) {
            qCDebug(lcEngine) << " Skip " << name;
            continue;
        }
        const QString path = PathFromObjectName(name);
        const QJsonValue value = GetJsonValue(m_dataModel, path);
        if (!IsJsonValueValid(value)) {
            qCCritical(lcEngine)
                << "====== Failed processing name: Cannot get the JSON Object====== " << name;
            continue;
        }
        qCDebug(lcEngine) << "====== Processing Name ====== " << name << ": "
                          << widget->metaObject()->className();
        if (IsCaptionName(name)) {
            InitCaption(path, widget, value.toString());
            continue;
        }
        qCDebug(lcEngine) << "---> Memeber JASON Object " << value;
        const int groupType = GetGroupType(path);
        qCDebug(lcEngine) << "---> GroupType <---" << groupType;
        switch (groupType) {
        case eGroupScalar:
            InitScalarMember(path, widget);
            break;
        case eGroupRowTable:
            InitRowTable(path, widget);
            break;
        case eGroupColumnTable:
            InitColumnTable(path, widget);
            break;
        default:
            qCCritical(lcEngine)
                << "====== Failed processing name: Not support this group type yet ====== " << name;
        }
    }
    SizeTables();
    qCDebug(lcEngine) << "============ [Done] Init widget ============ ";
}

void CAutoBindingDataModelDockWidget::InitCaption(const QString &path, QWidget *widget,
                                                  const QString &caption)
{
    qCDebug(lcEngine) << "---> Caption Setting: caption <---" << caption;
    const QJsonValue support =
        GetJsonValue(m_dataModel, ParentPath(path) + QLatin1String(".defaultSupport"));
    qCDebug(lcEngine) << "---> Caption Setting: default support <---" << support;
    auto *label = ExactCast<QLabel>(widget);
    if (label)
        label->setText(caption);
    if (label || ExactCast<QGroupBox>(widget))
        widget->setVisible(!IsJsonValueValid(support) || support.toInt() != 0);
}

// Visits the bound widgets that filter lets through and whose members source holds. visit takes the
// group type, the path and the widget, and answers whether it supports the type. A member that is
// looked for in vain leaves no trace in source.
template <typename Filter, typename Visit>
void CAutoBindingDataModelDockWidget::WalkMembers(const SWalkWords &words, QJsonObject &source,
                                                  Filter filter, Visit visit)
{
    qCDebug(lcEngine) << words.start;
    const CIndexScope index(this);
    for (QWidget *widget : index->BoundWidgets()) {
        const QString name = widget->objectName();
        if (!filter(name))
            continue;
        const QString path = PathFromObjectName(name);
        if (!IsJsonValueValid(GetJsonValueConst(source, path))) {
            qCCritical(lcEngine) << words.missing << name;
            continue;
        }
        if (words.tellsClass)
            qCDebug(lcEngine) << words.member << name << " " << widget->metaObject()->className();
        else
            qCDebug(lcEngine) << words.member << name;
        const int groupType = GetGroupType(path);
        qCDebug(lcEngine) << "---> GroupType <---" << groupType;
        if (!visit(groupType, path, widget))
            qCCritical(lcEngine) << words.unsupported;
    }
    if (words.done)
        qCDebug(lcEngine) << words.done;
}

void CAutoBindingDataModelDockWidget::UpdateWidget(QJsonObject update)
{
    m_modelReady = false;
    WalkMembers(kUpdateWords, update, IsResultMember,
                [&](int groupType, const QString &path, QWidget *widget) {
                    switch (groupType) {
                    case eGroupScalar:
                        UpdateScalarMember(path, widget, update);
                        return true;
                    case eGroupRowTable:
                        UpdateRowTable(path, widget, update);
                        return true;
                    case eGroupColumnTable:
                        UpdateColumnTable(path, widget, update);
                        return true;
                    default:
                        return false;
                    }
                });
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    CheckDateModelIntegrity(update);
    if (self)
        m_modelReady = true;
}

void CAutoBindingDataModelDockWidget::AppendWidget(QJsonObject update)
{
    WalkMembers(kAppendWords, update, IsResultMember,
                [&](int groupType, const QString &path, QWidget *widget) {
                    if (groupType != eGroupRowTable)
                        return false;
                    AppendRowTable(path, widget, update);
                    return true;
                });
}

std::string CAutoBindingDataModelDockWidget::PackageMemberValue()
{
    FinishEdit();
    WalkMembers(kPackageWords, m_dataModel, IsAnyMember,
                [&](int groupType, const QString &path, QWidget *widget) {
                    switch (groupType) {
                    case eGroupScalar:
                        PackageScalarMember(path, widget);
                        return true;
                    case eGroupColumnTable:
                        PackageColumnTable(path, widget);
                        return true;
                    default:
                        return false;
                    }
                });
    const std::string text = ModelToText(m_dataModel);
    qCDebug(lcEngine) << "============ [Done] Package MemberValue ============ " << text.c_str();
    if (++m_packageCount % kPackagesBetweenRenewals == 0)
        m_dataModel = ModelFromText(text);
    return text;
}

// The first member of a group makes its memberValue object.
bool CAutoBindingDataModelDockWidget::StoreMemberValue(const QString &path, const QJsonValue &value)
{
    const QString valuePath = GroupValuePath(path);
    const QString leafPath = valuePath + QLatin1Char('.') + MemberKey(path);
    if (HasJsonValue(m_dataModel, leafPath))
        return ModifyJsonValue(m_dataModel, leafPath, value, 0);
    if (!HasJsonValue(m_dataModel, valuePath))
        return InsertJsonObject(m_dataModel, GroupPath(path), QStringLiteral("memberValue"),
                                MemberKey(path), value);
    QJsonObject values = GetJsonValue(m_dataModel, valuePath).toObject();
    values.insert(MemberKey(path), value);
    return ModifyJsonValue(m_dataModel, valuePath, values, 0);
}
