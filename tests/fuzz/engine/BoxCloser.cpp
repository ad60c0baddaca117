#include "tests/fuzz/engine/BoxCloser.h"

#include <utility>

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>

CBoxCloser::CBoxCloser()
{
    qApp->installEventFilter(this);
}

bool CBoxCloser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Polish && event->type() != QEvent::Show)
        return false;
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (!box)
        return false;
    if (event->type() == QEvent::Polish) {
        box->setAttribute(Qt::WA_DontShowOnScreen);  // nobody looks, and painting takes its time
        return false;
    }
    const QPointer<QWidget> shown = box;
    QMetaObject::invokeMethod(
        this, [this, shown] { Close(shown); }, Qt::QueuedConnection);
    return false;
}

void CBoxCloser::Close(QWidget *box)
{
    const QPointer<QWidget> shown = box;
    // Taken away first: it may open a box of its own.
    const std::function<void()> action = std::exchange(m_action, {});
    if (action)
        action();
    if (shown)
        shown->close();
}
