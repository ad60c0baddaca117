// An action of a page or a window: it stands in the widget's actions(), with its shortcuts, and so in the
// menus that show these. GUI thread.
//
//   AddAction(window, "m_actionLog", "&Log...", {"Ctrl+L"}, [this] { ShowLog(); });
#pragma once

#include <functional>

#include <QStringList>

class QAction;
class QWidget;

// act: empty for an action that is wired elsewhere. keys: as QKeySequence::PortableText has them; the first one stands in the menu. The widget owns the
// action, and act is not called after its end.
QAction *AddAction(QWidget *widget, const char *name, const char *text, const QStringList &keys,
                   const std::function<void()> &act);
