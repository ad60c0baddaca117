// A progress bar in the status bar of the window that a page is docked in, while a request runs.
//
// A request that knows how far it is calls Show(): the bar comes at once. Any other request calls
// Await(): a bar without bounds comes after 300 ms, so that a quick request makes nothing flicker.
// End() takes the bar away; the status line beside it stays. A page without a window has no bar. GUI
// thread; the bar goes with this object.
//
//   m_progress.Await();          // the request is on its way
//   m_progress.Show(3, 12);      // three routes of twelve
//   m_progress.End();
#pragma once

#include <QPointer>
#include <QTimer>

class QProgressBar;
class QWidget;

class CStatusProgress : public QObject
{
public:
    // page: a dock widget; must outlive this object.
    explicit CStatusProgress(QWidget *page);
    ~CStatusProgress() override;

    void Await();
    // all: 0 while that is not known yet.
    void Show(int done, int all);
    void End();

private:
    QWidget *const m_page;
    QTimer m_delay;
    QPointer<QProgressBar> m_bar;
};
