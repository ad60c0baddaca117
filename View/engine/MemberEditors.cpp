#include "View/engine/MemberEditors.h"

#include <QCheckBox>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "View/editors/LateEditors.h"
#include "View/engine/CellText.h"
#include "View/engine/DataTypes.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"

namespace {

constexpr char kTrue[] = "true";
constexpr char kFalse[] = "false";

void AddCells(const STableGroup &group, const QString &groupName, QTableWidget *table,
              QVector<SMemberEditor> &editors)
{
    EnsureEditors(table);
    const QStringList captions = group.Captions(group.rows);
    for (int row = 0; row < group.rows.size(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            if (QWidget *cell = table->cellWidget(row, column))
                editors.append({groupName + QLatin1Char('.') + group.rows[row], captions.value(row),
                                column, cell});
        }
    }
}

void AddGroup(const QJsonObject &document, const QString &section, const QString &groupName,
              const CWidgetIndex &index, QVector<SMemberEditor> &editors)
{
    const QString properties =
        section + QLatin1Char('.') + groupName + QLatin1String(".memberProperty.");
    const QJsonObject group =
        GetJsonValueConst(document, section + QLatin1Char('.') + groupName).toObject();
    for (const QJsonValue &member : group.value(QLatin1String("memberList")).toArray()) {
        const QString path = properties + member.toString();
        QWidget *const widget = index.Find(path);
        if (auto *table = qobject_cast<QTableWidget *>(widget)) {
            AddCells(STableGroup(document, path), groupName, table, editors);
        } else if (widget && !PackagedText(widget).isNull()) {
            const QString caption =
                GetJsonValueConst(document, path + QLatin1String(".caption")).toString();
            editors.append({groupName + QLatin1Char('.') + member.toString(), caption, -1, widget});
        }
    }
}

}  // namespace

QVector<SMemberEditor> EditorsOf(const QJsonObject &document, const QString &section,
                                 const CWidgetIndex &index)
{
    QVector<SMemberEditor> editors;
    for (const QString &group : GetJsonValueConst(document, section).toObject().keys())
        AddGroup(document, section, group, index, editors);
    return editors;
}

QString PackagedText(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return QString::number(box->value());
    if (const auto *box = qobject_cast<const QCheckBox *>(editor))
        return QLatin1String(box->isChecked() ? kTrue : kFalse);
    return CellText(editor);
}

bool EnterPackaged(QWidget *editor, const QString &packaged)
{
    if (auto *box = qobject_cast<QCheckBox *>(editor)) {
        const bool isTrue = packaged == QLatin1String(kTrue);
        box->setChecked(isTrue);
        return isTrue || packaged == QLatin1String(kFalse);
    }
    QString typed = packaged;
    if (const auto *box = qobject_cast<const QSpinBox *>(editor)) {
        bool isNumber = false;
        const int number = packaged.toInt(&isNumber);
        if (isNumber)
            typed = QString::number(number, box->displayIntegerBase());
    }
    const std::optional<QString> taken = TakenText(editor, typed);
    if (taken)
        SetCellText(editor, *taken);
    return taken.has_value();
}
