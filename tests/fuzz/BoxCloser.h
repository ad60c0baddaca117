// Closes every message box as soon as its event loop runs, and may destroy a page meanwhile.
//
// It watches the application's events for a box that opens, so nothing waits on a clock. One per
// process. GUI thread.
//
//   CBoxCloser closer;
//   closer.Doom(page);          // goes away with the next box open
//   page->UpdateWidget(report); // returns, page may be gone
#pragma once

#include <QPointer>
#include <QWidget>

class CBoxCloser : public QObject
{
    Q_OBJECT

public:
    CBoxCloser();

    // The widget to be destroyed while the next box is open; null for none.
    void Doom(QWidget *widget) { m_doomed = widget; }
    int Count() const { return m_count; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Close(QWidget *box);

    QPointer<QWidget> m_doomed;
    int m_count = 0;
};
