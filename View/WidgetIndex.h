// The widgets of a page by the document path that their names stand for.
//
// Built once a walk from all widgets below a root, depth-first with children in creation order. A
// widget's kind is told by its exact class name, so a subclass of a Qt class is another kind. GUI
// thread; the index holds plain pointers. The bound widgets come from the form and live as long as
// the page; cells of tables, which come and go, are among Widgets() alone.
//
//   const CWidgetIndex index(page);
//   QWidget *band = index.Find("cmdIf.request.group1.memberProperty.band");
//   if (auto *box = ExactCast<QComboBox>(band)) ...
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

class CWidgetIndex
{
public:
    explicit CWidgetIndex(const QWidget *root);

    // All widgets, and those whose names the engine binds.
    const QList<QWidget *> &Widgets() const { return m_widgets; }
    const QList<QWidget *> &BoundWidgets() const { return m_bound; }
    // First widget whose name maps to the path; null when there is none.
    QWidget *Find(const QString &path) const { return m_byPath.value(path); }

private:
    QList<QWidget *> m_widgets;
    QList<QWidget *> m_bound;
    QHash<QString, QWidget *> m_byPath;
};

// True when the widget's class is className itself, no subclass of it.
bool IsExactClass(const QWidget *widget, const char *className);

template <typename Widget>
Widget *ExactCast(QWidget *widget)
{
    return widget && IsExactClass(widget, Widget::staticMetaObject.className())
               ? static_cast<Widget *>(widget)
               : nullptr;
}
