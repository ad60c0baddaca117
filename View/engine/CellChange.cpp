#include "View/engine/CellChange.h"

#include <QPointer>
#include <QTableWidget>

#include "View/editors/LateEditors.h"
#include "View/engine/CellText.h"

void SetCells(const CellChanges &changes)
{
    std::vector<QPointer<QTableWidget>> tables;
    tables.reserve(changes.size());
    for (const SCellChange &change : changes)
        tables.emplace_back(change.table);
    for (size_t i = 0; i < changes.size(); ++i) {
        if (!tables[i])
            continue;
        EnsureEditors(tables[i]);
        if (QWidget *editor = tables[i]->cellWidget(changes[i].row, changes[i].column))
            SetCellText(editor, changes[i].text);
    }
}
