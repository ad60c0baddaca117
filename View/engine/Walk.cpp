#include "View/engine/Walk.h"

#include <QGroupBox>
#include <QLabel>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/Binding.h"
#include "View/engine/MemberNames.h"
#include "View/engine/WidgetIndex.h"

namespace {

bool IsResultMember(const QString &name)
{
    return IsResultName(name) && !IsCaptionName(name);
}

bool IsAnyMember(const QString &name)
{
    return !IsCaptionName(name);
}

void InitCaption(const SBinding &binding, const QString &path, QWidget *widget,
                 const QString &caption)
{
    qCDebug(lcEngine) << "---> Caption Setting: caption <---" << caption;
    const QJsonValue support =
        GetJsonValue(binding.document, ParentPath(path) + QLatin1String(".defaultSupport"));
    qCDebug(lcEngine) << "---> Caption Setting: default support <---" << support;
    auto *label = ExactCast<QLabel>(widget);
    if (label)
        label->setText(caption);
    if (label || ExactCast<QGroupBox>(widget))
        widget->setVisible(!IsJsonValueValid(support) || support.toInt() != 0);
}

void InitMember(const SBinding &binding, QWidget *widget)
{
    const QString name = widget->objectName();
    const QString path = PathFromObjectName(name);
    const QJsonValue value = GetJsonValue(binding.document, path);
    if (!IsJsonValueValid(value)) {
        qCCritical(lcEngine) << "====== Failed processing name: Cannot get the JSON Object====== "
                             << name;
        return;
    }
    qCDebug(lcEngine) << "====== Processing Name ====== " << name << ": "
                      << widget->metaObject()->className();
    if (IsCaptionName(name)) {
        InitCaption(binding, path, widget, value.toString());
        return;
    }
    qCDebug(lcEngine) << "---> Memeber JASON Object " << value;
    const int groupType = GroupTypeOf(binding.document, path);
    qCDebug(lcEngine) << "---> GroupType <---" << groupType;
    const SGroupType *type = FindGroupType(groupType);
    if (type && type->init)
        type->init(binding, path, widget);
    else
        qCCritical(lcEngine)
            << "====== Failed processing name: Not support this group type yet ====== " << name;
}

}  // namespace

const SWalk kUpdateWalk = {
    .step = &SGroupType::update,
    .takes = IsResultMember,
    .start = "============ [Start] Update Widget  ============ ",
    .member = "====== Update Widget: objName ======",
    .missing = "====== Failed to update: Cannot get its JSON ojbect ======",
    .unsupported = "====== Failed to update : Not support this group type yet ======",
    .done = "============ [Done] Update Widget ============ ",
};

const SWalk kAppendWalk = {
    .step = &SGroupType::append,
    .takes = IsResultMember,
    .start = "============ [Start] Append Widget ============ ",
    .member = "====== Append Widget: objName ======",
    .missing = "====== Failed to append: Cannot get its JSON ojbect ======",
    .unsupported = "====== Failed to append : Not support this group type yet ======",
    .done = "============ [Done] Append Widget ============ ",
};

// Its end is told with the document's text.
const SWalk kPackageWalk = {
    .step = &SGroupType::package,
    .takes = IsAnyMember,
    .tellsClass = true,
    .start = "============ [Start] Package MemberValue ============ ",
    .member = "====== Packge MemberValue: objName ======",
    .missing = "====== Failed to packge: Cannot get its JSON ojbect ====== ",
    .unsupported = "====== Failed to packge : Not support this group type yet ======",
};

// A member that is looked for in vain leaves no trace in the document. Its group type is the page's:
// an update changes none.
void Walk(const SWalk &walk, const SBinding &binding)
{
    qCDebug(lcEngine) << walk.start;
    for (QWidget *widget : binding.index.BoundWidgets()) {
        const QString name = widget->objectName();
        if (!walk.takes(name))
            continue;
        const QString path = PathFromObjectName(name);
        if (!IsJsonValueValid(GetJsonValueConst(binding.update, path))) {
            qCCritical(lcEngine) << walk.missing << name;
            continue;
        }
        if (walk.tellsClass)
            qCDebug(lcEngine) << walk.member << name << " " << widget->metaObject()->className();
        else
            qCDebug(lcEngine) << walk.member << name;
        const int groupType = GroupTypeOf(binding.document, path);
        qCDebug(lcEngine) << "---> GroupType <---" << groupType;
        const SGroupType *type = FindGroupType(groupType);
        const BindMember step = type ? type->*walk.step : nullptr;
        if (step)
            step(binding, path, widget);
        else
            qCCritical(lcEngine) << walk.unsupported;
    }
    if (walk.done)
        qCDebug(lcEngine) << walk.done;
}

void InitMembers(const SBinding &binding, const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (IsBoundName(name))
            InitMember(binding, widget);
        else
            qCDebug(lcEngine) << " Skip " << name;
    }
    NameMembers(binding, widgets);
}
