#include "View/engine/ColumnTableGroup.h"

#include <algorithm>

#include <QHeaderView>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/editors/TableKeys.h"
#include "View/engine/Binding.h"
#include "View/engine/ColumnCells.h"
#include "View/engine/DataTypes.h"
#include "View/engine/InitEntry.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"
#include "View/engine/TableSize.h"

namespace {

constexpr int kColumnWidth = 58;    // pixels
constexpr int kNarrowColumns = 16;  // columns up to which the table shows all of them

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

// Reads the range check of a row, if its entry asks for one, and the values that its cells start
// with.
void ReadCheck(SColumnRow &row, const QJsonObject &trait)
{
    row.defaults = trait.value(QLatin1String("defaultValue")).toArray();
    const QJsonValue ranges = row.wish.entry.value(QLatin1String("rangeCheck"));
    if (!row.type->cellCheckSlot || !IsJsonValueValid(ranges))
        return;
    qCDebug(lcEngine) << "---> [Init][type3] =="
                      << "== Has the rangeCheck <--- " << ranges;
    row.ranges = ranges.toString();
    row.isChecked = true;
    const QJsonValue value = row.wish.entry.value(QLatin1String("value"));
    if (IsJsonValueValid(value)) {
        qCDebug(lcEngine) << "---> [Init][type3] =="
                          << "== Has the value and rangeCheck <--- " << value;
        row.defaults = QJsonArray{value};
    }
}

void InitRow(const SBinding &binding, CColumnCells &cells, QTableWidget *table, int row,
             const STableGroup &group, const QString &properties)
{
    const QString member = group.rows[row];
    const QJsonObject memberObject = group.properties.value(member).toObject();
    const QJsonObject trait = memberObject.value(QLatin1String("trait")).toObject();
    const QString dataType = trait.value(QLatin1String("dataType")).toString();
    qCDebug(lcEngine) << "---> [Init][type3] ==" << member << "== Member JSON Object  <---"
                      << memberObject;
    qCDebug(lcEngine) << "---> [Init][type3] ==" << member << "== DataType <--- " << dataType;

    SColumnRow content = {
        .type = FindDataType(dataType),
        .wish = {.use = ECellUse::Column, .parent = table->viewport()},
        .isEnabled = memberObject.value(QLatin1String("defaultEnableStatus")).toInt() != 0,
    };
    const SDataType *type = content.type;
    if (!type || !type->makeCell) {
        qCCritical(lcEngine)
            << "---> [Fail][Init][type3] Cannot get the row info: dataType not support yet <--- "
            << dataType;
        return;
    }
    if (type->cellReadsEntry)
        content.wish.entry = ResolveInitEntry(binding, memberObject, trait).toObject();
    ReadCheck(content, trait);
    if (type->entryKey && IsJsonValueValid(content.wish.entry.value(QLatin1String(type->entryKey))))
        qCDebug(lcEngine) << "---> [Init][type3] ==" << type->entryLog;
    qCDebug(lcEngine) << "---> [Init][type3] =="
                      << "== defaultValueArray <--- " << content.defaults;
    if (type->hasItems) {
        content.wish.items = trait.value(QLatin1String("value")).toArray();
        qCDebug(lcEngine) << "---> [Init][type3] =="
                          << "== listValue <--- " << content.wish.items;
    }
    for (int c = 0; type->columnWidth != 0 && c < table->columnCount(); ++c)
        table->horizontalHeader()->resizeSection(c, type->columnWidth);
    content.member = binding.changes.Member(properties + QLatin1Char('.') + member);
    binding.changes.Start(content.member, {}, content.defaults);
    cells.AddRow(row, content);
}

// Rows of labels alone.
bool IsForReading(const STableGroup &group)
{
    return std::all_of(group.rows.begin(), group.rows.end(), [&group](const QString &member) {
        return group.Member(member, "trait.dataType").toString() == QLatin1String("label");
    });
}

// Of a document that comes after another one: the cells are made anew.
void RemoveCells(QTableWidget *table)
{
    delete CColumnCells::Of(table);
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c)
            table->removeCellWidget(r, c);
    }
}

}  // namespace

void InitColumnTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [[Fail][Init][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    qCDebug(lcEngine) << "---> [Init][type3] Initialize <---";
    const STableGroup group(binding.document, path);
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
    RemoveCells(table);
    table->setColumnCount(group.columns);
    table->setRowCount(group.rows.size());
    FillPlaces(table);
    CTableKeys::Of(table)->SetEdits(&binding.edits);
    CTableKeys::Of(table)->SetForReading(IsForReading(group));
    auto *cells = new CColumnCells(table, &binding.page, &binding.edits, &binding.changes);
    for (int c = 0; c < group.columns; ++c)
        table->horizontalHeader()->resizeSection(c, kColumnWidth);
    for (int r = 0; r < group.rows.size(); ++r) {
        table->verticalHeader()->resizeSection(r, kCellRowHeight);
        InitRow(binding, *cells, table, r, group, GroupPropertyPath(path));
    }
    SetColumnHeaders(table, headers);
    table->setVerticalHeaderLabels(group.Captions(group.rows));

    const bool narrow = group.columns <= kNarrowColumns;
    LayHeadersOut(table);
    table->setMaximumSize(narrow ? FitTableSize(table) : FitWideTableSize(table));
    table->setMinimumSize(table->maximumSize());
    if (narrow)
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    cells->MakeAtPaint();
}

void UpdateColumnTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Update][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(binding.update, path);
    CColumnCells *cells = CColumnCells::Of(table);
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
        for (int c = 0; cells && c < group.columns; ++c)
            cells->Show(r, c, *type, memberObject, ColumnElement(defaults, c).toString());
    }
    table->setVerticalHeaderLabels(group.Captions(group.rows));
}

void PackageColumnTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Package][type3] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(binding.document, path);
    CColumnCells *cells = CColumnCells::Of(table);
    for (int r = 0; r < group.rows.size(); ++r) {
        const QString member = group.rows[r];
        const SDataType *type = FindDataType(group.Member(member, "trait.dataType").toString());
        if (!type || !type->makeCell || !type->text) {
            qCCritical(lcEngine)
                << "---> [Fail][Package][type3] Not support this data type yet <---";
            continue;
        }
        QJsonArray values;
        for (int c = 0; c < table->columnCount(); ++c)
            values.append(cells ? cells->Text(r, c, *type) : QString());
        const QString memberPath = GroupPropertyPath(path) + QLatin1Char('.') + member;
        qCDebug(lcEngine) << "---> [Package][type3] Path in memberValue <--- "
                          << GroupValuePath(path) << " " << member;
        qCDebug(lcEngine) << "---> [Package][type3] Value array<--- " << values;
        if (!binding.StoreMemberValue(memberPath, values))
            qCCritical(lcEngine) << "---> [Fail][Package][type3] : memberValuePath <--- "
                                 << GroupValuePath(path);
    }
}
