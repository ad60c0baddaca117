#include "View/undo/CellWriter.h"

#include <QPointer>

#include "View/engine/CellText.h"

bool CCellWriter::Write(const QStringList &selection, const CellEdits &edits,
                        QString SCellEdit::*text)
{
    const QPointer<QWidget> alive(m_page.Widget());
    if (m_page.Selection() != selection && !m_page.ShowSelection(selection))
        return false;
    if (!alive)
        return false;
    m_isWriting = true;
    for (const SCellEdit &edit : edits) {
        if (QWidget *editor = EditorAt(edit.place))
            SetCellText(editor, edit.*text);
        if (!alive)
            return false;
    }
    m_isWriting = false;
    m_wrote(edits);
    if (!edits.empty())
        ShowEditor(edits.front().place);
    return true;
}
