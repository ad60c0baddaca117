// The button "Tools" in the status bar: a menu of all actions at hand, those of the page on top first,
// then those of the window. What has no button elsewhere is found here, with its shortcut.
//
// The menu is made when it opens. Without any action the button is off. GUI thread.
//
//   auto *tools = new CToolsButton([this] { return PageOnTop(); }, this);
//   statusBar()->addPermanentWidget(tools);
#pragma once

#include <functional>

#include <QPushButton>

class QMainWindow;
class QMenu;

class CToolsButton : public QPushButton
{
    Q_OBJECT

public:
    // page: that the menu is for; may answer null. The window outlives the button.
    CToolsButton(std::function<QWidget *()> page, QMainWindow *window);

private:
    void Fill();

    const std::function<QWidget *()> m_page;
    QMainWindow *const m_window;
    QMenu *const m_menu;
};
