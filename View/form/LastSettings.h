// The settings that pages had in the last session, for users who want them back: "Restore settings at
// start" in the window's menu, off at first.
//
// While it is on, the pages' settings are kept when the window hides, resets or ends, and entered when
// pages are there anew. What a page does not take is told in one box. GUI thread.
//
//   m_lastSettings.Keep(Pages());
//   m_lastSettings.Restore(Pages());   // the window may be gone when it returns
#pragma once

#include <QList>

class CAutoBindingDataModelDockWidget;
class QAction;
class QWidget;

class CLastSettings
{
public:
    // Adds its action to the window.
    explicit CLastSettings(QWidget *window);

    void Keep(const QList<CAutoBindingDataModelDockWidget *> &pages) const;
    void Restore(const QList<CAutoBindingDataModelDockWidget *> &pages);

private:
    QAction *const m_action;
};
