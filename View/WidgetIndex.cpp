#include "View/WidgetIndex.h"

#include "Model/MemberPath.h"

CWidgetIndex::CWidgetIndex(const QWidget *root)
    : m_widgets(root ? root->findChildren<QWidget *>() : QList<QWidget *>())
{
    for (QWidget *widget : qAsConst(m_widgets)) {
        const QString name = widget->objectName();
        if (!IsBoundName(name))
            continue;
        m_bound.append(widget);
        const QString path = PathFromObjectName(name);
        if (!m_byPath.contains(path))
            m_byPath.insert(path, widget);
    }
}

bool IsExactClass(const QWidget *widget, const char *className)
{
    return qstrcmp(widget->metaObject()->className(), className) == 0;
}
