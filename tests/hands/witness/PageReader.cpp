#include "tests/hands/witness/PageReader.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>

#include "tests/common/Cells.h"

namespace {

enum EPart
{
    eSection = 1,
    eGroup = 2,
    eMember = 4,
    eParts = 5,
};

bool IsBound(const QStringList &parts)
{
    return parts.size() == eParts && (parts[0] == "cmdIf" || parts[0] == "calDataIf");
}

QJsonArray RowValues(const QTableWidget *table, int row)
{
    QJsonArray values;
    for (int c = 0; c < table->columnCount(); ++c) {
        const QWidget *cell = table->cellWidget(row, c);
        values.append(cell ? ShownValue(cell) : QString());
    }
    return values;
}

void FillTable(QJsonObject &values, const QJsonObject &group, const QTableWidget *table)
{
    int row = 0;
    for (const QJsonValue &member : group["memberList"].toArray()) {
        const QJsonObject property =
            group["memberProperty"].toObject()[member.toString()].toObject();
        if (property["defaultSupport"].toInt() == 1)
            values[member.toString()] = RowValues(table, row++);
    }
}

}  // namespace

QJsonObject FillFrom(const QDockWidget *page, QJsonObject document)
{
    MakeAllEditors(page);
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        const QStringList parts = widget->objectName().split('_');
        if (!IsBound(parts) || !document.contains(parts[0]))
            continue;
        QJsonObject root = document[parts[0]].toObject();
        QJsonObject section = root[parts[eSection]].toObject();
        QJsonObject group = section[parts[eGroup]].toObject();
        QJsonObject values = group["memberValue"].toObject();
        const auto *table = qobject_cast<const QTableWidget *>(widget);
        const int type = group["groupType"].toInt();
        if (type == 1 && group["memberProperty"].toObject().contains(parts[eMember]))
            values[parts[eMember]] = ShownValue(widget);
        else if (type == 3 && table)
            FillTable(values, group, table);
        else
            continue;
        group["memberValue"] = values;
        section[parts[eGroup]] = group;
        root[parts[eSection]] = section;
        document[parts[0]] = root;
    }
    return document;
}

QString ShownValue(const QWidget *widget)
{
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->currentText();
    if (const auto *box = qobject_cast<const QSpinBox *>(widget))
        return QString::number(box->value());
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(widget))
        return QString::number(box->value(), 'f', box->decimals());
    if (const auto *box = qobject_cast<const QCheckBox *>(widget))
        return box->isChecked() ? "true" : "false";
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    return line ? line->text() : QString();
}

bool IsEditor(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QCheckBox *>(widget) ||
           (qobject_cast<const QLineEdit *>(widget) &&
            !qobject_cast<const QAbstractSpinBox *>(widget->parentWidget()));
}

QMap<const QWidget *, QString> EditorValues(const QDockWidget *page)
{
    MakeAllEditors(page);
    QMap<const QWidget *, QString> values;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        if (IsEditor(widget))
            values[widget] = ShownValue(widget);
    }
    return values;
}

QString Unfinished(const QDockWidget *page)
{
    MakeAllEditors(page);
    for (const QAbstractSpinBox *box : page->findChildren<QAbstractSpinBox *>()) {
        QString finished = ShownValue(box);
        const auto *spin = qobject_cast<const QSpinBox *>(box);
        if (spin && spin->displayIntegerBase() != 10)
            finished = QString::number(spin->value(), spin->displayIntegerBase());
        if (box->text() != finished)
            return QString("%1 shows \"%2\" for %3").arg(NameOf(box), box->text(), finished);
    }
    return {};
}

QString NameOf(const QWidget *widget)
{
    if (!widget)
        return "nothing";
    if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
        return widget->objectName();
    const QWidget *parent = widget->parentWidget();
    const auto *table =
        parent ? qobject_cast<const QTableWidget *>(parent->parentWidget()) : nullptr;
    for (int r = 0; table && r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            if (table->cellWidget(r, c) == widget)
                return QString("%1[%2][%3]").arg(table->objectName()).arg(r).arg(c);
        }
    }
    return parent ? QString("%1 in %2").arg(widget->metaObject()->className(), NameOf(parent))
                  : QString(widget->metaObject()->className());
}
