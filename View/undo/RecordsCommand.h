// A change of whole records in memory as a command: what a Read or Import replaced, a revert, a copy.
// It has been made already when it comes on the stack. GUI thread; the page outlives its steps.
//
//   stack.push(new CRecordsCommand(page, "Revert record", change));
#pragma once

#include <QUndoCommand>

#include "View/undo/EditedPage.h"

class CRecordsCommand : public QUndoCommand
{
public:
    // change: not null. The page shows the selection that it was made under.
    CRecordsCommand(IEditedPage &page, const QString &name, CalChange change);

    void undo() override { Apply(ECalWay::Back); }
    void redo() override;

private:
    void Apply(ECalWay way);

    IEditedPage &m_page;
    const QStringList m_selection;
    const CalChange m_change;
    bool m_isDone = true;
};
