#include "tests/hands/witness/FlashPlaces.h"

#include <cmath>

#include <QJsonArray>
#include <QJsonObject>
#include <QTableWidget>

#include "Trace/dictionary/CalBlockLayouts.h"
#include "Trace/dictionary/FieldPath.h"
#include "tests/hands/witness/PageReader.h"

namespace {

constexpr int kSubbands = kVondCalBlockSubbands;
constexpr int kAllBlocks = -1;

// A field of a block, by its name in Trace/dictionary, or of all blocks of a record.
struct SCellField
{
    int block = kAllBlocks;
    QString name;  // empty: none
    int64_t value = 0;
};

int64_t Db(const QString &text)
{
    return static_cast<int64_t>(std::trunc(text.toDouble() * 32));
}

// The cell of a table whose columns are the subbands of all blocks.
SCellField OfSubband(int column, const QString &name, int64_t value)
{
    return {column / kSubbands, name.arg(column % kSubbands), value};
}

// The number that a name ends with.
int Number(const QString &name)
{
    return name.mid(name.lastIndexOf(QRegExp("[^0-9]")) + 1).toInt();
}

SCellField AptLevelField(const SCellKey &cell, const QString &text)
{
    const QString name = QString("level[%1].").arg(Number(cell.member) - 1);
    if (cell.group == "group2")
        return {kAllBlocks, name + "paMode", text.toInt()};
    if (cell.group == "group3")
        return {kAllBlocks, name + "prf", text.toInt() * 32};
    if (cell.group == "group4")
        return {kAllBlocks, name + "paGain", Db(text)};
    if (cell.group == "group5")
        return {kAllBlocks, name + "dc2dcLevel", qRound(QString(text).remove('V').toDouble() * 10)};
    return {kAllBlocks, name + "usage256Qam", text.toInt()};
}

SCellField AptField(const SCellKey &cell, const QString &text)
{
    const int group = Number(cell.group);
    const int mode = cell.member.contains("High") ? 0 : cell.member.contains("Middle") ? 1 : 2;
    const QString part = QString("pa[%1].").arg(mode);
    const QString offset = QString("[%1]").arg(cell.column);
    switch (group) {
    case 1:
        return {kAllBlocks, "paControlLevel", text.toInt()};
    case 7:
        return OfSubband(cell.column, part + "paGain[%1]", Db(text));
    case 8:
        return {kAllBlocks, part + "paGainTempOffset" + offset, Db(text)};
    case 9:
        return OfSubband(cell.column, part + "powerDetector[%1]", Db(text));
    case 10:
        return {kAllBlocks, part + "powerDetectorTempOffset" + offset, Db(text)};
    case 11:
        if (cell.member == "normalTempIndex")
            return {kAllBlocks, "normalTempIndex", text.toInt()};
        return {kAllBlocks, QString("couplerLoss[%1]").arg(mode), Db(text)};
    case 12:
        return OfSubband(cell.column, "freq[%1]", text.toInt());
    default:
        return AptLevelField(cell, text);
    }
}

bool IsType2(const Selection &selection)
{
    return selection["routeType"].contains('2');
}

SCellField PathLossField(const Selection &selection, const SCellKey &cell, const QString &text)
{
    const int group = Number(cell.group);
    const bool isType2 = IsType2(selection);
    // Of the two kinds of routes the page stores the tables of one.
    if (isType2 ? group == 2 || group == 3 : group > 4)
        return {};
    if (group == 1)
        return {kAllBlocks, QString("plOffset[%1]").arg(cell.column), Db(text)};
    if (group == 4)
        return OfSubband(cell.column, "freq[%1]", text.toInt());
    const auto loss = [&](int pair) {
        return QString("loss[%1][") + QString::number(pair) +
               (selection["powerMode"] == "HPM" ? "].hpm" : "].lpm");
    };
    const EVondRxPath row =
        group == 2 || group == 6 || cell.member == "main" ? EVondRxPath::Main : EVondRxPath::Div;
    if (!isType2)
        return OfSubband(cell.column, loss(VondType1LossPair(row, Number(cell.member))), Db(text));
    const int path = selection["path"].toInt();
    const int pair = group == 5
                         ? VondPartialOnPair(row, path, cell.column)
                         : VondGainByGainPair(row, path, Number(selection["type2GainModeIdx"]),
                                              Number(cell.member), cell.column);
    return OfSubband(selection["freqIdx"].toInt(), loss(pair), Db(text));
}

const CFlashFile::SRecord *RecordOf(const Selection &selection, const CFlashFile &flash)
{
    const bool isApt = selection.contains("txRoute");
    const uint32_t kind = isApt ? eFlashApt : IsType2(selection) ? eFlashType2 : eFlashType1;
    const uint32_t route = selection[isApt ? "txRoute" : "route"].toUInt();
    int region = isApt ? Number(selection["aggBwRegion"]) : 0;
    for (const CFlashFile::SRecord &record : flash.records) {
        if (record.place.kind == kind && record.place.route == route && region-- == 0)
            return &record;
    }
    return nullptr;
}

}  // namespace

const SLayout &BlockLayout(uint32_t kind)
{
    return kind == eFlashApt     ? kLayoutOf<SAptBlock>
           : kind == eFlashType2 ? kLayoutOf<SMMType2PathlossBlockV7>
                                 : kLayoutOf<SMMType1PathlossBlockV7>;
}

QString PlaceText(const FlashPlace &place)
{
    return QString("kind %1, route %2, %3 kHz, block %4, byte %5")
        .arg(std::get<0>(place))
        .arg(std::get<1>(place))
        .arg(std::get<2>(place))
        .arg(std::get<3>(place))
        .arg(std::get<4>(place));
}

uint8_t ByteAt(const CFlashFile &flash, const FlashPlace &place)
{
    const auto &[kind, route, bandwidth, block, offset] = place;
    for (const CFlashFile::SRecord &record : flash.records) {
        if (record.place.kind == kind && record.place.route == route &&
            record.place.bandwidth == bandwidth && block < record.blocks.size())
            return static_cast<uint8_t>(record.blocks[block][offset]);
    }
    return 0;
}

FlashBytes Differences(const CFlashFile &was, const CFlashFile &is)
{
    FlashBytes bytes;
    for (int r = 0; r < is.records.size(); ++r) {
        const SFlashPlace &place = is.records[r].place;
        for (int block = 0; block < qMin(was.records[r].blocks.size(), is.records[r].blocks.size());
             ++block) {
            const QByteArray &before = was.records[r].blocks[block];
            const QByteArray &after = is.records[r].blocks[block];
            for (int at = 0; before != after && at < after.size(); ++at) {
                if (before[at] != after[at])
                    bytes[FlashPlace(place.kind, place.route, place.bandwidth, block, at)] =
                        static_cast<uint8_t>(after[at]);
            }
        }
    }
    return bytes;
}

Selection SelectionOf(const QDockWidget *page)
{
    const QString prefix = "calDataIf_config_group1_memberProperty_";
    Selection selection;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        if (name.startsWith(prefix) && !name.contains("caption"))
            selection[name.mid(prefix.size())] = ShownValue(widget);
    }
    return selection;
}

QMap<SCellKey, QString> CellsOf(const QDockWidget *page, const QJsonObject &document)
{
    const QJsonObject data = FillFrom(page, document)["calDataIf"].toObject()["data"].toObject();
    QMap<SCellKey, QString> cells;
    for (const QString &group : data.keys()) {
        const QJsonObject values = data[group].toObject()["memberValue"].toObject();
        for (const QString &member : values.keys()) {
            if (!values[member].isArray()) {
                cells[{group, member, 0}] = values[member].toString();
                continue;
            }
            int column = 0;
            for (const QJsonValue &value : values[member].toArray())
                cells[{group, member, column++}] = value.toString();
        }
    }
    return cells;
}

FlashBytes BytesOf(const Selection &selection, const SCellKey &cell, const QString &text,
                   const CFlashFile &flash)
{
    FlashBytes bytes;
    const CFlashFile::SRecord *record = RecordOf(selection, flash);
    if (!record)
        return bytes;
    const SCellField field =
        selection.contains("txRoute") ? AptField(cell, text) : PathLossField(selection, cell, text);
    const SFlashPlace &place = record->place;
    const auto found = FindField(BlockLayout(place.kind), field.name.toStdString());
    if (!found && !field.name.isEmpty())
        qFatal("%s is no field of a block", qPrintable(field.name));
    if (!found)
        return bytes;
    for (int block = 0; block < record->blocks.size(); ++block) {
        if (field.block != kAllBlocks && field.block != block)
            continue;
        for (uint32_t i = 0; i < found->size; ++i)
            bytes[FlashPlace(place.kind, place.route, place.bandwidth, block,
                             static_cast<int>(found->offset + i))] =
                static_cast<uint8_t>(static_cast<uint64_t>(field.value) >> (8 * i));
    }
    return bytes;
}
