// The clipboard and the box that a table's command opens, for tests of these.
//
//   PutClipboard("1.5\t2.5");
//   grid.Press(Qt::Key_V, Qt::ControlModifier);
//   ClosedBox();   // what it said
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>

inline void PutClipboard(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

inline QString ClipboardNow()
{
    return QGuiApplication::clipboard()->text();
}

// The text of the box that comes, which is closed; empty when none comes.
inline QString ClosedBox()
{
    QString text;
    QTimer::singleShot(0, [&text] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    });
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return text;
}
