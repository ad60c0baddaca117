// Writes edits into a page's editors, for undo and redo: shows the selection that they were made under,
// writes, and shows the first one of them. The focus stays where it is. GUI thread.
//
//   writer.Write(selection, edits, &SCellEdit::from);
#pragma once

#include <functional>
#include <utility>

#include <QStringList>

#include "View/undo/CellEdit.h"
#include "View/undo/EditedPage.h"

class CCellWriter
{
public:
    using Wrote = std::function<void(const CellEdits &)>;

    // wrote: is told of what was written.
    CCellWriter(IEditedPage &page, Wrote wrote) : m_page(page), m_wrote(std::move(wrote)) {}

    // False when the page has no such selection, or is gone, and this object with it.
    bool Write(const QStringList &selection, const CellEdits &edits, QString SCellEdit::*text);
    // What editors signal now is no edit of the user.
    bool IsWriting() const { return m_isWriting; }
    IEditedPage &Page() const { return m_page; }

private:
    IEditedPage &m_page;
    const Wrote m_wrote;
    bool m_isWriting = false;
};
