// Keeps a stray turn of the wheel from changing what a page holds.
//
// A Qt spin box or combo box under the pointer takes the wheel without having the focus, and gets
// the focus by it. A guarded editor gets no focus by the wheel; without the focus it leaves the wheel
// to what is around it. A guarded tab bar always does: a turn over it would change the page and stop
// a test. Stateless; the guard must outlive the widgets. GUI thread.
//
//   m_wheel.GuardAll(page->findChildren<QWidget *>());
//   m_wheel.Release(selector);   // one that is meant to turn
#pragma once

#include <QList>
#include <QObject>

class QWidget;

class CWheelGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // A widget that is no editor and no tab bar is left alone.
    void Guard(QWidget *widget);
    void GuardAll(const QList<QWidget *> &widgets);
    // Takes the wheel without the focus, now and later; a wheel gives it no focus all the same.
    static void Release(QWidget *widget);

    bool eventFilter(QObject *object, QEvent *event) override;
};
