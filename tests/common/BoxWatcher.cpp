#include "tests/common/BoxWatcher.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

CBoxWatcher::CBoxWatcher(int everyMs)
{
    connect(&m_timer, &QTimer::timeout, this, &CBoxWatcher::Look);
    m_timer.start(everyMs);
}

void CBoxWatcher::Look()
{
    const QPointer<QMessageBox> box =
        qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    QString plain = box->text();
    plain.remove("<P><FONT COLOR='#000080'><FONT SIZE='4'>").remove("</FONT></FONT></P>");
    m_seen.append({box->windowTitle(), box->text(), plain, box->informativeText(),
                   box->detailedText(), box->icon()});
    if (onBox)
        onBox();
    if (box)
        box->done(QMessageBox::Close);
}
