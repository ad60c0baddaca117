// The table of calibration items: all that the core knows of an item, one row an item.
//
// An item's name travels through the requests. The core turns it into the item's id once; inside it
// is the id, which is the place of the row. The four flows are the operations of
// ICalItemByL1Operation. Constant data, any thread.
//
//   const std::optional<ECalItem> item = CalItemByName("APT Profile");   // ECalItem::Apt
//   m_items[Index(*item)].operation = FindCalItem(*item).make();
#pragma once

#include <memory>
#include <optional>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "Controller/core/PageId.h"
#include "Operations/calibration/CalState.h"

class ICalItemByL1Operation;
struct SSupportedGains;

enum class ECalItem
{
    PathLoss = 0,
    Apt = 1,
    Count,
};
constexpr size_t kCalItemCount = static_cast<size_t>(ECalItem::Count);

constexpr size_t Index(ECalItem item)
{
    return static_cast<size_t>(item);
}

struct SCalItemRow
{
    ECalItem id;
    const char *name;
    const char *key;  // on command lines and in names of files
    EPageId page;     // that shows the item's records
    bool showsGains;  // the page shows values by the gains that the DUT supports
    // An item without a valid record.
    std::unique_ptr<ICalItemByL1Operation> (*make)();
    // Which record a packaged document selects.
    SCalName (*select)(const QJsonObject &document);
    // show: the document with the record that it selects; none when there is no such record. store:
    // takes what the page shows into that record. The item is one that make has made.
    std::optional<QJsonObject> (*show)(const ICalItemByL1Operation &item,
                                       const QJsonObject &document, const SSupportedGains &gains);
    void (*store)(ICalItemByL1Operation &item, const QJsonObject &document);
};

const SCalItemRow &FindCalItem(ECalItem item);
QString CalItemName(ECalItem item);
// All names, by id.
QStringList CalItemNames();
std::optional<ECalItem> CalItemByName(const QString &name);
std::optional<ECalItem> CalItemByKey(const QString &key);
// The item whose records a page shows, if it is such a page.
std::optional<ECalItem> CalItemOfPage(EPageId page);
