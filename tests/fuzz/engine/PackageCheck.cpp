#include "tests/fuzz/engine/PackageCheck.h"

#include <cmath>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QJsonDocument>
#include <QSpinBox>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelText.h"
#include "View/engine/DataTypes.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/engine/FuzzPage.h"

namespace {

enum EGroupType
{
    eGroupScalar = 1,
    eGroupColumnTable = 3,
};

void CheckScalar(QWidget *editor, const QString &text)
{
    bool ok = true;
    if (ExactCast<QSpinBox>(editor)) {
        text.toInt(&ok, 10);
        Require(ok, "a range packages as a decimal integer");
    } else if (const auto *box = ExactCast<QDoubleSpinBox>(editor)) {
        // What is half typed packages as it stands, such as "-".
        const double value = text.toDouble(&ok);
        Require((ok && std::isfinite(value)) || !box->hasAcceptableInput(),
                "a point range packages as a number");
    } else if (ExactCast<QCheckBox>(editor)) {
        Require(text == QLatin1String("true") || text == QLatin1String("false"),
                "a boolean packages as true or false");
    }
}

// A key that the paths of the format can address.
bool IsPlainKey(const QString &key)
{
    return !key.isEmpty() && !key.contains(QLatin1Char('.'));
}

void CheckColumnTable(const QTableWidget *table, const QString &path, const QJsonObject &packaged)
{
    const STableGroup group(packaged, path);
    for (const QString &member : group.rows) {
        const SDataType *type = FindDataType(group.Member(member, "trait.dataType").toString());
        if (!type || !type->makeCell || !IsPlainKey(member))
            continue;
        const QJsonValue values =
            GetJsonValueConst(packaged, GroupValuePath(path) + QLatin1Char('.') + member);
        Require(values.toArray().size() == table->columnCount(),
                "a row of a column table packages one text a column");
        for (const QJsonValue &value : values.toArray())
            Require(value.isString(), "an element of a column table packages as a text");
    }
}

void CheckEditor(QWidget *editor, const QJsonObject &packaged)
{
    const QString name = editor->objectName();
    const QString path = PathFromObjectName(name);
    if (IsCaptionName(name) || !IsJsonValueValid(GetJsonValueConst(packaged, path)))
        return;
    const int groupType =
        GetJsonValueConst(packaged, GroupPrefix(path) + QLatin1String("groupType")).toInt();
    if (groupType == eGroupScalar && FindScalarTypeOfWidget(editor)) {
        const QJsonValue value =
            GetJsonValueConst(packaged, GroupValuePath(path) + QLatin1Char('.') + MemberKey(path));
        Require(value.isString(), "a member in an editor of its own packages as a text");
        CheckScalar(editor, value.toString());
    } else if (groupType == eGroupColumnTable) {
        if (const auto *table = ExactCast<QTableWidget>(editor))
            CheckColumnTable(table, path, packaged);
    }
}

bool Publishes(const QJsonObject &groups)
{
    for (const QJsonValue &group : groups) {
        const QJsonObject properties =
            group.toObject().value(QLatin1String("memberProperty")).toObject();
        for (const QJsonValue &member : properties) {
            for (const char *list : {"publishValueList", "publishEnableStatusList"}) {
                if (!member.toObject().value(QLatin1String(list)).toArray().isEmpty())
                    return true;
            }
        }
    }
    return false;
}

}  // namespace

QJsonObject CheckedPackage(CFuzzPage &page)
{
    const std::string text = page.PackageMemberValue();
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(QByteArray::fromStdString(text), &error);
    Require(error.error == QJsonParseError::NoError && parsed.isObject(),
            "the packaged text is a JSON object");
    Require(page.PackageMemberValue() == text, "packaging twice gives the same text");
    const QJsonObject packaged = parsed.object();
    for (QWidget *editor : page.Editors())
        CheckEditor(editor, packaged);
    return packaged;
}

void CheckOwnReport(CFuzzPage &page)
{
    const QString results = page.Word() + QLatin1Char('.') + page.ResultSection();
    const QString inputs = page.Word() + QLatin1Char('.') + page.InputSection();
    const QJsonObject before = CheckedPackage(page);
    const bool isQuiet = !Publishes(GetJsonValueConst(before, results).toObject());

    page.UpdateWidget(before);
    const QJsonObject once = CheckedPackage(page);
    Require(!isQuiet || GetJsonValueConst(once, inputs) == GetJsonValueConst(before, inputs),
            "a report leaves what the user entered");

    page.UpdateWidget(before);
    const QJsonObject twice = CheckedPackage(page);
    Require(!isQuiet || twice == once, "the same report again changes nothing");
}
