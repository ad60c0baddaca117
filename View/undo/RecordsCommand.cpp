#include "View/undo/RecordsCommand.h"

#include <utility>

#include <QPointer>
#include <QWidget>

CRecordsCommand::CRecordsCommand(IEditedPage &page, const QString &name, CalChange change)
    : QUndoCommand(name), m_page(page), m_selection(page.Selection()), m_change(std::move(change))
{
}

void CRecordsCommand::redo()
{
    if (!std::exchange(m_isDone, false))
        Apply(ECalWay::Forth);
}

// What the page shows goes into memory first: the state that the change was made in, or came to.
void CRecordsCommand::Apply(ECalWay way)
{
    const QPointer<QWidget> alive(m_page.Widget());
    const CalChange change = m_change;
    if (m_page.Selection() != m_selection && !m_page.ShowSelection(m_selection))
        return;
    if (!alive)
        return;
    m_page.Ctrl().ApplyCalChange(m_page.Item(), m_page.Packaged(), change, way);
    m_page.ShowMemory();
}
