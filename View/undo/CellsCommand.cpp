#include "View/undo/CellsCommand.h"

#include <utility>

CCellsCommand::CCellsCommand(CCellWriter &writer, const QString &name, CellEdits edits, EDone done,
                             int mergeId)
    : QUndoCommand(name), m_writer(writer), m_selection(writer.Page().Selection()),
      m_edits(std::move(edits)), m_isDone(done == EDone::Yes), m_mergeId(mergeId)
{
}

void CCellsCommand::undo()
{
    m_writer.Write(m_selection, m_edits, &SCellEdit::from);
}

void CCellsCommand::redo()
{
    if (!std::exchange(m_isDone, false))
        m_writer.Write(m_selection, m_edits, &SCellEdit::to);
}

bool CCellsCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const CCellsCommand *>(other);
    if (next->m_selection != m_selection || !(next->m_edits.front().place == m_edits.front().place))
        return false;
    m_edits.front().to = next->m_edits.front().to;
    return true;
}
