#include "View/explain/ChangeWords.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelResources.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/TableGroup.h"

namespace {

constexpr char kCalibration[] = "calDataIf.";
constexpr char kModelName[] = "modelName";

QString TextOf(const QJsonValue &value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15);
    if (value.isArray())
        return ToStringList(value.toArray()).join(QStringLiteral(", "));
    if (!value.isObject())
        return value.toVariant().toString();
    const QJsonObject object = value.toObject();
    QStringList parts;
    for (auto it = object.begin(); it != object.end(); ++it)
        parts.append(it.key() + QLatin1Char(' ') + TextOf(it.value()));
    return parts.join(QStringLiteral(", "));
}

// "cmdIf.request.group1.memberProperty.band" is "request.group1.band".
QString KeyOf(const QString &path)
{
    return GroupPath(path).section(QLatin1Char('.'), 1) + QLatin1Char('.') + MemberKey(path);
}

QString ColumnName(const QJsonObject &properties, int column)
{
    const QJsonArray captions = properties.value(QLatin1String("colFieldCaptionList")).toArray();
    if (!captions.isEmpty())
        return captions[column].toString();
    const int start = properties.value(QLatin1String("startIndex")).toInt();
    return QString::number(start + column * properties.value(QLatin1String("indexStep")).toInt());
}

}  // namespace

QString CChangeWords::Caption(const QString &path, int column) const
{
    const QJsonObject &document = m_page.DataModel();
    const QString caption =
        GetJsonValueConst(document, path + QLatin1String(".caption")).toString().trimmed();
    const QString name = caption.isEmpty() ? MemberKey(path) : caption;
    if (column < 0)
        return name;
    const QJsonObject properties = GetJsonValueConst(document, GroupPropertyPath(path)).toObject();
    return name + QLatin1Char('[') + ColumnName(properties, column) + QLatin1Char(']');
}

QString CChangeWords::Name(const QString &path, int column) const
{
    return QStringLiteral("%1 (%2)").arg(Caption(path, column), KeyOf(path));
}

// The cells of a table start with what the document has for them.
QString CChangeWords::To(const SChange &change) const
{
    const bool isRow = change.reason.cause == EChangeCause::Start && change.reason.entry.isArray();
    return isRow ? TextOf(change.reason.entry) : change.to;
}

QString CChangeWords::Because(const SChange &change)
{
    const SChangeReason &reason = change.reason;
    switch (reason.cause) {
    case EChangeCause::Start:
        return IsOfTemplate(change) ? QStringLiteral("The page's own default at the start")
                                    : QStringLiteral("The DUT's capability at the start");
    case EChangeCause::User:
        return reason.key.isEmpty() ? QStringLiteral("The user")
                                    : QStringLiteral("The user (%1)").arg(reason.key);
    case EChangeCause::Result:
        return m_page.Changes().PathOf(change.member).startsWith(QLatin1String(kCalibration))
                   ? QStringLiteral("Calibration data of the selection")
                   : QStringLiteral("A result of the DUT");
    case EChangeCause::Relation:
        break;
    }
    const QString path = m_page.Changes().PathOf(reason.publisher);
    const QString what = reason.isMissing ? QStringLiteral("no entry, it stays")
                         : change.isOn    ? change.to
                                          : TextOf(reason.entry);
    return QStringLiteral("Relation with %1 (%2), key \"%3\": %4")
        .arg(Caption(path, -1), MemberKey(path), reason.key,
             what.isEmpty() ? QStringLiteral("an empty text") : what);
}

QStringList CChangeWords::Members() const
{
    QStringList paths;
    const QJsonObject &document = m_page.DataModel();
    const QString interface = AbsoluteModelPath({}, m_page.GetModelInterface() == eInterfaceCmdIf);
    const QJsonObject sections = GetJsonValueConst(document, interface.chopped(1)).toObject();
    for (const QString &section : sections.keys()) {
        const QJsonObject groups = sections[section].toObject();
        for (const QString &group : groups.keys()) {
            const QJsonArray members =
                groups[group].toObject().value(QLatin1String("memberList")).toArray();
            for (const QJsonValue &member : members)
                paths.append(interface + section + QLatin1Char('.') + group +
                             QLatin1String(".memberProperty.") + member.toString());
        }
    }
    return paths;
}

// The DUT's capability has written nothing into the member, so its default is the template's.
bool CChangeWords::IsOfTemplate(const SChange &change)
{
    const auto known = m_isOfTemplate.constFind(change.member);
    if (known != m_isOfTemplate.constEnd())
        return *known;
    LoadTemplate();
    const QString path = m_page.Changes().PathOf(change.member);
    const QJsonValue value =
        GetJsonValueConst(m_template, path + QLatin1String(".trait.defaultValue"));
    const bool isSame = change.reason.entry.isArray()
                            ? value.toArray() == change.reason.entry.toArray()
                            : value.toString() == change.reason.entry.toString();
    return *m_isOfTemplate.insert(change.member, isSame && HasTemplateTables(path));
}

bool CChangeWords::HasTemplateTables(const QString &path) const
{
    const QString trait = path + QLatin1String(".trait");
    const QJsonObject now = GetJsonValueConst(m_page.DataModel(), trait).toObject();
    const QJsonObject then = GetJsonValueConst(m_template, trait).toObject();
    for (const char *table : {"value", "valuePair", "enableStatusPair"}) {
        if (now.value(QLatin1String(table)) != then.value(QLatin1String(table)))
            return false;
    }
    return !then.isEmpty();
}

void CChangeWords::LoadTemplate()
{
    if (m_hasTemplate)
        return;
    m_hasTemplate = true;
    InitModelResources();
    const QJsonValue name = m_page.DataModel().value(QLatin1String(kModelName));
    const QDir resources(QStringLiteral(":/"));
    for (const QString &file : resources.entryList({QStringLiteral("*.json")})) {
        QFile resource(resources.filePath(file));
        if (!resource.open(QIODevice::ReadOnly))
            continue;
        const QJsonObject document = QJsonDocument::fromJson(resource.readAll()).object();
        if (document.value(QLatin1String(kModelName)) == name)
            m_template = document;
    }
}
