// The table of calibration items: item names and ids.
//
// An item's name is what travels through the requests; the id is what the core switches on.
// Constant data, any thread.
//
//   CalItemName(ECalItem::Apt);   // "APT Profile"
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

enum class ECalItem
{
    PathLoss = 0,
    Apt = 1,
};

QString CalItemName(ECalItem item);
// All names, by id.
QStringList CalItemNames();
// Item name to item id.
QMap<QString, int> BuildCalItemMap();
