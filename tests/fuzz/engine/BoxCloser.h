// Closes every message box as soon as its event loop runs, and does something else first, once.
//
// It watches the application's events for a box that opens, so nothing waits on a clock. One per
// process. GUI thread.
//
//   CBoxCloser closer;
//   closer.Meanwhile([=] { delete page; });  // while the next box is open
//   page->UpdateWidget(report);              // returns, page may be gone
#pragma once

#include <functional>

#include <QObject>

class QWidget;

class CBoxCloser : public QObject
{
    Q_OBJECT

public:
    CBoxCloser();

    // What happens while the next box is open, before it closes; an empty function for nothing.
    void Meanwhile(std::function<void()> action) { m_action = std::move(action); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Close(QWidget *box);

    std::function<void()> m_action;
};
