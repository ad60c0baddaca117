#include "View/engine/WidgetIndex.h"

#include <QAbstractItemView>

#include "Model/MemberPath.h"

CWidgetIndex::CWidgetIndex(const QWidget *root)
{
    if (root)
        Add(root);
}

void CWidgetIndex::Add(const QObject *parent)
{
    for (QObject *child : parent->children()) {
        if (!child->isWidgetType())
            continue;
        const QString name = child->objectName();
        if (IsBoundName(name)) {
            auto *widget = static_cast<QWidget *>(child);
            const QString path = PathFromObjectName(name);
            m_bound.append(widget);
            if (!m_byPath.contains(path))
                m_byPath.insert(path, widget);
        }
        if (!qobject_cast<QAbstractItemView *>(child))
            Add(child);
    }
}

QList<QWidget *> CWidgetIndex::BoundWidgets() const
{
    QList<QWidget *> widgets;
    for (const QPointer<QWidget> &widget : m_bound) {
        if (widget)
            widgets.append(widget);
    }
    return widgets;
}
