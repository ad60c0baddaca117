#include "tests/view/engine/BoxWatch.h"

#include <QApplication>

CBoxWatch::CBoxWatch(std::function<void(QMessageBox *)> answer) : m_answer(std::move(answer))
{
    connect(&m_timer, &QTimer::timeout, this, &CBoxWatch::Look);
    m_timer.start(0);
}

void CBoxWatch::Look()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    QString text = box->text();
    text.remove("<P><FONT COLOR='#000080'><FONT SIZE='4'>").remove("</FONT></FONT></P>");
    m_seen.append(
        {box->windowTitle(), text, box->informativeText(), box->detailedText(), box->icon()});
    if (m_answer)
        m_answer(box);
    else
        box->close();
}
