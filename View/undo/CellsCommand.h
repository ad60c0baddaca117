// Edits of cells and other editors as one command, under the selection that they were made under.
//
// Choices in one list merge into one command as long as the list keeps the focus. GUI thread; the writer
// outlives the command's steps.
//
//   stack.push(new CCellsCommand(writer, "Reset PD", edits, EDone::No));
#pragma once

#include <QUndoCommand>

#include "View/undo/CellWriter.h"

class CCellsCommand : public QUndoCommand
{
public:
    // Whether the editors have it already when it comes on the stack.
    enum class EDone
    {
        No,
        Yes,
    };

    // mergeId: of commands that become one with the one before, if its edit is of the same editor;
    // -1: none.
    CCellsCommand(CCellWriter &writer, const QString &name, CellEdits edits, EDone done,
                  int mergeId = -1);

    void undo() override;
    void redo() override;
    int id() const override { return m_mergeId; }
    bool mergeWith(const QUndoCommand *other) override;

    const QStringList &Selection() const { return m_selection; }
    const CellEdits &Edits() const { return m_edits; }

private:
    CCellWriter &m_writer;
    const QStringList m_selection;
    CellEdits m_edits;
    bool m_isDone;
    const int m_mergeId;
};
