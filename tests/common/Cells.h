// The cells of column tables, for tests that work them.
//
// A column table has no editors until somebody looks at it; a test that raises no page, or waits for
// no paint, asks for them here. By name alone, so that it works on a loaded plug-in as well.
//
//   MakeAllEditors(page);
//   table->cellWidget(0, 0)->setFocus();
#pragma once

#include <QMetaObject>
#include <QTableWidget>

// Of all tables below the widget.
inline void MakeAllEditors(const QWidget *widget)
{
    for (const QTableWidget *table : widget->findChildren<QTableWidget *>()) {
        for (QObject *part : table->children()) {
            if (part->inherits("CLateEditors"))
                QMetaObject::invokeMethod(part, "Ensure");
        }
    }
}
