#include "tests/soak/day/SoakObjects.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QSet>
#include <QThread>
#include <QWidget>
#include <QWindow>

namespace {

void AddTree(QSet<QObject *> &objects, QObject *top)
{
    objects.insert(top);
    for (QObject *below : top->findChildren<QObject *>())
        objects.insert(below);
}

QSet<QObject *> AllObjects()
{
    QSet<QObject *> objects;
    AddTree(objects, qApp);
    for (QWidget *window : QApplication::topLevelWidgets())
        AddTree(objects, window);
    return objects;
}

// "QTimer reportTimer of CNrRsrpForceDockWidgetV7": the nearest one above it that has a name.
QString NameWithOwner(const QObject *object)
{
    const QObject *owner = object->parent();
    while (owner && owner->objectName().isEmpty())
        owner = owner->parent();
    return QString("%1 %2 of %3")
        .arg(object->metaObject()->className(), object->objectName(),
             owner ? owner->objectName() : QString("nobody"));
}

}  // namespace

SHandles CountAll()
{
    SHandles handles = ReadHandles();
    handles.widgets = QApplication::allWidgets().size();
    handles.windows = QGuiApplication::allWindows().size();
    const QSet<QObject *> objects = AllObjects();
    handles.objects = objects.size();
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    for (QObject *object : objects) {
        if (object->thread() == QThread::currentThread())
            handles.timers += dispatcher->registeredTimers(object).size();
    }
    return handles;
}

QMap<QString, int> CountByName()
{
    QMap<QString, int> counts;
    for (const QObject *object : AllObjects())
        ++counts[NameWithOwner(object)];
    return counts;
}
