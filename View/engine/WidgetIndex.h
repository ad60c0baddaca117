// The widgets of a page by the document path that their names stand for.
//
// A page builds its index once, when it is first shown; all walks use it, and so does relevance. It
// lists the bound widgets below a root depth-first, children in creation order. The inside of a
// table is left out: its cells come and go by the thousand, and none is bound by a name. A widget
// that is destroyed leaves the index. GUI thread.
//
//   const CWidgetIndex index(page);
//   for (QWidget *widget : index.BoundWidgets()) ...
//   QWidget *band = index.Find("cmdIf.request.group1.memberProperty.band");
//   if (auto *box = ExactCast<QComboBox>(band)) ...
#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

#include "View/editors/ExactClass.h"

class CWidgetIndex
{
public:
    CWidgetIndex() = default;  // empty
    // root: null for an empty index.
    explicit CWidgetIndex(const QWidget *root);

    // The widgets whose names the engine binds.
    QList<QWidget *> BoundWidgets() const;
    // First widget whose name maps to the path; null when there is none.
    QWidget *Find(const QString &path) const { return m_byPath.value(path); }

private:
    void Add(const QObject *parent);

    QVector<QPointer<QWidget>> m_bound;
    QHash<QString, QPointer<QWidget>> m_byPath;
};
