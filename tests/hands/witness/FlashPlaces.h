// Where the cells of the calibration pages lie in the DUT's flash.
//
// A table of its own, from the pages' members to the names of the records: it shares no line with the
// core's.
//
//   const SCellKey cell{"group2", "lna0", 3};
//   for (const SFlashByte &byte : BytesOf(selection, cell, "1.50000", flash))
#pragma once

#include <map>
#include <tuple>

#include <QDockWidget>
#include <QMap>
#include <QVector>

#include "Trace/dictionary/Field.h"
#include "tests/device/FlashFile.h"

// A data cell of a page: its group, its member and its column, 0 for a single value.
struct SCellKey
{
    QString group;
    QString member;
    int column;

    bool operator<(const SCellKey &other) const
    {
        return std::tie(group, member, column) < std::tie(other.group, other.member, other.column);
    }
    QString Text() const { return QString("%1.%2[%3]").arg(group, member).arg(column); }
};

// Where a byte lies: kind, route, bandwidth (kHz), block, offset.
using FlashPlace = std::tuple<uint32_t, uint32_t, uint32_t, int, int>;
using FlashBytes = std::map<FlashPlace, uint8_t>;

QString PlaceText(const FlashPlace &place);
// What a block of a record of that kind consists of.
const SLayout &BlockLayout(uint32_t kind);
// The byte of a flash that is at the place, and the bytes in which two differ, as the second has
// them. Both flashes are of one DUT.
uint8_t ByteAt(const CFlashFile &flash, const FlashPlace &place);
FlashBytes Differences(const CFlashFile &was, const CFlashFile &is);

// What a page selects: the texts of its config members.
using Selection = QMap<QString, QString>;
Selection SelectionOf(const QDockWidget *page);
// The value of each data cell.
QMap<SCellKey, QString> CellsOf(const QDockWidget *page, const QJsonObject &document);

// The bytes that hold the cell, with the value of the text; none when the record has no such place.
FlashBytes BytesOf(const Selection &selection, const SCellKey &cell, const QString &text,
                   const CFlashFile &flash);
