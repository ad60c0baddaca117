// Answers modal message boxes as a person would: reads each box that opens and presses its button.
//
// Looks by a timer while it lives, so it also works while a box's own loop runs. onBox, if set, is
// called with the box still open, and may do anything but wait.
//
//   CBoxWatcher boxes;
//   ... press Start ...
//   QCOMPARE(boxes.Seen().size(), 1);
//   QCOMPARE(boxes.Seen()[0].title, QString("Cont Rx start failed"));
#pragma once

#include <functional>

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVector>

struct SSeenBox
{
    QString title;
    QString text;
    QString plain;  // the text without the markup that sets the tool's font
    QString informative;
    QString detailed;
    int icon;  // QMessageBox::Icon
};

class CBoxWatcher : public QObject
{
public:
    // everyMs: how often it looks. With 0 it would at every turn of the event loop, and the thread would
    // never rest, at the cost of those that work for the test.
    explicit CBoxWatcher(int everyMs = 1);

    const QVector<SSeenBox> &Seen() const { return m_seen; }
    std::function<void()> onBox;

private:
    void Look();

    QTimer m_timer;
    QVector<SSeenBox> m_seen;
};
