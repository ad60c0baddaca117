#include "View/editors/NamedAction.h"

#include <QAction>
#include <QKeySequence>
#include <QWidget>

QAction *AddAction(QWidget *widget, const char *name, const char *text, const QStringList &keys,
                   const std::function<void()> &act)
{
    auto *const action = new QAction(QLatin1String(text), widget);
    action->setObjectName(QLatin1String(name));
    QList<QKeySequence> sequences;
    for (const QString &key : keys)
        sequences.append(QKeySequence::fromString(key));
    action->setShortcuts(sequences);
    if (act)
        QObject::connect(action, &QAction::triggered, widget, act);
    widget->addAction(action);
    return action;
}
