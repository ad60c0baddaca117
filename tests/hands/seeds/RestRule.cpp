#include "tests/hands/seeds/RestRule.h"

#include <QApplication>

QString CRestRule::After(const SDeed &)
{
    // A list or a menu that the user has opened stays until he goes on.
    if (const QWidget *open = QApplication::activeModalWidget())
        return QString("%1 \"%2\" stays open")
            .arg(open->metaObject()->className(), open->windowTitle());
    if (!m_desk.IsQuiet() || m_desk.Pages().isEmpty())
        return {};
    if (m_desk.Window()->isVisible() && !m_desk.Window()->isEnabled())
        return "the window is disabled";
    return {};
}
