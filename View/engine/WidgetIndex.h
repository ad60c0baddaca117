// The widgets of a page by the document path that their names stand for.
//
// Built once a walk from all widgets below a root, depth-first with children in creation order. A
// widget's kind is told by its exact class name, so a subclass of a Qt class is another kind. The
// inside of a table is left out: its cells come and go by the thousand, and none is bound by a
// name. GUI thread; the index holds plain pointers to widgets of the form, which live as long as
// the page.
//
//   const CWidgetIndex index(page);
//   for (QWidget *widget : index.BoundWidgets()) ...
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

    // The widgets whose names the engine binds.
    const QList<QWidget *> &BoundWidgets() const { return m_bound; }
    // First widget whose name maps to the path; null when there is none.
    QWidget *Find(const QString &path) const { return m_byPath.value(path); }

private:
    void Add(const QObject *parent);

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
