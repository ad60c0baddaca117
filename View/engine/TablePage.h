// What a page is to the commands of its tables. The page derives from it and outlives its tables.
//
//   if (ITablePage *page = TablePageOf(table))
//       page->ChangeCells("Fill right", changes);
#pragma once

#include <QString>
#include <QWidget>

#include "View/engine/CellChange.h"

class ITablePage
{
public:
    virtual ~ITablePage() = default;

    // Sets cells that a command of a table has changed, as one change.
    virtual void ChangeCells(const QString &name, const CellChanges &changes) = 0;
    // Tells why a command of a table was not done. The page may be gone when it returns.
    virtual void ShowRefusal(const QString &command, const QString &reason) = 0;
    virtual void ShowStatus(const QString &text) = 0;
    virtual QWidget *Widget() = 0;
};

// The page around a widget; null when there is none.
inline ITablePage *TablePageOf(QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto *page = dynamic_cast<ITablePage *>(widget))
            return page;
    }
    return nullptr;
}
