// groupType 3: arrays edited in a table, a row a member, a column an element.
#include <QHeaderView>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/DataTypes.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"

namespace {

constexpr int kColumnWidth = 58;    // pixels
constexpr int kNarrowColumns = 16;  // columns up to which the table shows all of them

// Keys of an entry that a data type looks at, and what is said of them.
struct SEntryLog
{
    const char *dataType;
    const char *key;
    const char *text;
};

constexpr SEntryLog kEntryLogs[] = {
    {"pointRange", "decimals", "== Has the decimals setting <--- "},
    {"unsignedRange", "displayBase", "== It has displayBase <--- "},
};

QStringList ColumnHeaders(const STableGroup &group)
{
    const QJsonValue captionList = group.properties.value(QLatin1String("colFieldCaptionList"));
    if (IsJsonValueValid(captionList)) {
        qCDebug(lcEngine) << "---> [Init][type3] Column info <---"
                          << " dimention: " << group.columns << " Caption Array:" << captionList;
        QStringList captions = ToStringList(captionList.toArray());
        while (captions.size() < group.columns)
            captions.append(QString());
        return captions.mid(0, group.columns);
    }
    const int start = group.properties.value(QLatin1String("startIndex")).toInt();
    const int step = group.properties.value(QLatin1String("indexStep")).toInt();
    qCDebug(lcEngine) << "---> [Init][type3] Column info <---"
                      << " dimention: " << group.columns << " startLabel:" << start
                      << " steps: " << step;
    QStringList headers;
    for (int c = 0; c < group.columns; ++c)
        headers.append(QString::number(start + static_cast<qint64>(c) * step));
    return headers;
}

}  // namespace

void CAutoBindingDataModelDockWidget::InitColumnTable(const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [[Fail][Init][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    qCDebug(lcEngine) << "---> [Init][type3] Initialize <---";
    const STableGroup group(m_dataModel, path);
    const QStringList headers = ColumnHeaders(group);
    qCDebug(lcEngine) << "---> [Init][type3] Row info - from member list <---" << group.members;
    if (group.rows.isEmpty()) {
        qCDebug(lcEngine)
            << "---> [Init][type3] Set visible to false, all member value are not support <---";
        table->setVisible(false);
        return;
    }
    qCDebug(lcEngine) << "---> [Init][type3] Row info - after checking memeber support <---"
                      << group.rows;
    table->setColumnCount(group.columns);
    table->setRowCount(group.rows.size());
    FillPlaces(table);
    for (int c = 0; c < group.columns; ++c)
        table->horizontalHeader()->resizeSection(c, kColumnWidth);
    for (int r = 0; r < group.rows.size(); ++r) {
        table->verticalHeader()->resizeSection(r, kCellRowHeight);
        InitColumnTableRow(table, r, group);
    }
    table->setHorizontalHeaderLabels(headers);
    table->setVerticalHeaderLabels(group.Captions(group.rows));

    const bool narrow = group.columns <= kNarrowColumns;
    m_sizings.push_back([table, narrow] {
        table->setMaximumSize(narrow ? FitTableSize(table) : FitWideTableSize(table));
        table->setMinimumSize(table->maximumSize());
        if (narrow)
            table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    });
}

void CAutoBindingDataModelDockWidget::InitColumnTableRow(QTableWidget *table, int row,
                                                         const STableGroup &group)
{
    const QString member = group.rows[row];
    const QJsonObject memberObject = group.properties.value(member).toObject();
    const QJsonObject trait = memberObject.value(QLatin1String("trait")).toObject();
    const QString dataType = trait.value(QLatin1String("dataType")).toString();
    const bool enabled = memberObject.value(QLatin1String("defaultEnableStatus")).toInt() != 0;
    qCDebug(lcEngine) << "---> [Init][type3] ==" << member << "== Member JSON Object  <---"
                      << memberObject;
    qCDebug(lcEngine) << "---> [Init][type3] ==" << member << "== DataType <--- " << dataType;

    const SDataType *type = FindDataType(dataType);
    if (!type || !type->makeCell) {
        qCCritical(lcEngine)
            << "---> [Fail][Init][type3] Cannot get the row info: dataType not support yet <--- "
            << dataType;
        return;
    }
    SCellWish wish{
        ECellUse::Column, table->viewport(), {}, trait.value(QLatin1String("value")).toArray(), {}};
    if (type->cellReadsEntry)
        wish.entry = ResolveInitEntry(memberObject, trait).toObject();
    QJsonArray defaults = trait.value(QLatin1String("defaultValue")).toArray();
    const QJsonValue check = wish.entry.value(QLatin1String("rangeCheck"));
    const bool isChecked = type->cellCheckSlot && IsJsonValueValid(check);
    if (isChecked) {
        qCDebug(lcEngine) << "---> [Init][type3] =="
                          << "== Has the rangeCheck <--- " << check;
        const QJsonValue value = wish.entry.value(QLatin1String("value"));
        if (IsJsonValueValid(value)) {
            qCDebug(lcEngine) << "---> [Init][type3] =="
                              << "== Has the value and rangeCheck <--- " << value;
            defaults = QJsonArray{value};
        }
    }
    for (const SEntryLog &log : kEntryLogs) {
        if (dataType == QLatin1String(log.dataType) &&
            IsJsonValueValid(wish.entry.value(QLatin1String(log.key))))
            qCDebug(lcEngine) << "---> [Init][type3] ==" << log.text;
    }
    qCDebug(lcEngine) << "---> [Init][type3] =="
                      << "== defaultValueArray <--- " << defaults;
    if (!type->cellReadsEntry)
        qCDebug(lcEngine) << "---> [Init][type3] =="
                          << "== listValue <--- " << wish.items;

    for (int c = 0; c < group.columns; ++c) {
        if (type->columnWidth != 0)
            table->horizontalHeader()->resizeSection(c, type->columnWidth);
        wish.value = ColumnElement(defaults, c);
        QWidget *cell = type->makeCell(wish);
        if (type->takesStatus)
            cell->setEnabled(enabled);
        PlaceEditor(table, row, c, cell);
        m_edits.Watch(cell);
        if (isChecked) {
            cell->setToolTip(check.toString());
            connect(cell, SIGNAL(editingFinished()), this, type->cellCheckSlot);
        }
    }
}

void CAutoBindingDataModelDockWidget::UpdateColumnTable(const QString &path, QWidget *widget,
                                                        QJsonObject update)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Update][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(update, path);
    qCDebug(lcEngine) << "---> [Update][type3] Column info <--- dimention" << group.columns;
    qCDebug(lcEngine) << "---> [Update][type3] Row info - after checking the support status in "
                         "memeber list <---"
                      << group.rows;
    for (int r = 0; r < group.rows.size(); ++r) {
        const QString member = group.rows[r];
        const QString dataType = group.Member(member, "trait.dataType").toString();
        const QJsonArray defaults = group.Member(member, "trait.defaultValue").toArray();
        qCDebug(lcEngine) << "---> [Update][type3] Update Row <--- " << member;
        qCDebug(lcEngine) << "---> [Update][type3] == " << dataType << " == DataType <---";
        qCDebug(lcEngine) << "---> [Update][type3] == "
                          << " == DefaultValueArray " << defaults << " == <--- ";
        const SDataType *type = FindDataType(dataType);
        if (!type || !type->updatesCell || !type->show) {
            qCCritical(lcEngine)
                << "---> [Fail][Update][type3] Not support this data type yet <---";
            continue;
        }
        const QJsonObject memberObject = group.properties.value(member).toObject();
        for (int c = 0; c < group.columns; ++c) {
            QWidget *cell = table->cellWidget(r, c);
            if (cell && IsExactClass(cell, type->className))
                type->show(cell, memberObject, ColumnElement(defaults, c).toString());
        }
    }
    table->setVerticalHeaderLabels(group.Captions(group.rows));
}

void CAutoBindingDataModelDockWidget::PackageColumnTable(const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Package][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(m_dataModel, path);
    for (int r = 0; r < group.rows.size(); ++r) {
        const QString member = group.rows[r];
        const SDataType *type = FindDataType(group.Member(member, "trait.dataType").toString());
        if (!type || !type->makeCell || !type->text) {
            qCCritical(lcEngine)
                << "---> [Fail][Package][type3] Not support this data type yet <---";
            continue;
        }
        QJsonArray values;
        for (int c = 0; c < table->columnCount(); ++c) {
            const QWidget *cell = table->cellWidget(r, c);
            values.append(cell && IsExactClass(cell, type->className) ? type->text(cell)
                                                                      : QString());
        }
        const QString memberPath = GroupPropertyPath(path) + QLatin1Char('.') + member;
        qCDebug(lcEngine) << "---> [Package][type3] Path in memberValue <--- "
                          << GroupValuePath(path) << " " << member;
        qCDebug(lcEngine) << "---> [Package][type3] Value array<--- " << values;
        if (!StoreMemberValue(memberPath, values))
            qCCritical(lcEngine) << "---> [Fail][Package][type3] : memberValuePath <--- "
                                 << GroupValuePath(path);
    }
}
