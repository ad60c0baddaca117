// Answers the modal message boxes that open while it lives, and keeps what they said.
//
// It looks for a box each time the event loop comes round, so it works inside the box's own loop.
//
//   CBoxWatch boxes;
//   page.Init();
//   QCOMPARE(boxes.Seen().size(), 1);
#pragma once

#include <functional>

#include <QMessageBox>
#include <QTimer>
#include <QVector>

struct SSeenBox
{
    QString title;
    QString text;  // without the markup that sets the tool's font
    QString informative;
    QString detailed;
    QMessageBox::Icon icon;
};

class CBoxWatch : public QObject
{
    Q_OBJECT

public:
    // answer is called for each open box in place of a close.
    explicit CBoxWatch(std::function<void(QMessageBox *)> answer = {});
    const QVector<SSeenBox> &Seen() const { return m_seen; }

private:
    void Look();

    QTimer m_timer;
    QVector<SSeenBox> m_seen;
    std::function<void(QMessageBox *)> m_answer;
};
