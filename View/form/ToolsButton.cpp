#include "View/form/ToolsButton.h"

#include <QMainWindow>
#include <QMenu>

CToolsButton::CToolsButton(std::function<QWidget *()> page, QMainWindow *window)
    : m_page(std::move(page)), m_window(window), m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("m_tools"));
    setText(QStringLiteral("&Tools"));
    setToolTip(QStringLiteral("What else this page and this window can do"));
    setFocusPolicy(Qt::TabFocus);      // a click leaves the focus to the page
    m_menu->setToolTipsVisible(true);  // of actions that are off
    setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &CToolsButton::Fill);
}

void CToolsButton::Fill()
{
    m_menu->clear();
    if (const QWidget *page = m_page())
        m_menu->addActions(page->actions());
    m_menu->addSeparator();
    m_menu->addActions(m_window->actions());
}
