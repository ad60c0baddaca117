// A blank over a window's pages while they are being built: each stands beside the earlier ones
// until it is ready, and a box may hold its init flow up for long.
//
// The pages below count as shown, but Qt paints nothing of what an opaque widget covers. The status
// bar stays in sight. The blank stays on top of whatever comes into the window, and goes with this
// object or with the window. GUI thread.
//
//   CInitCover cover(this);
//   ... addDockWidget(page), event loops ...
#pragma once

#include <QMainWindow>
#include <QPointer>

class CInitCover : public QObject
{
    Q_OBJECT

public:
    explicit CInitCover(QMainWindow *window);
    ~CInitCover() override;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void Place();

    QPointer<QMainWindow> m_window;
    QPointer<QWidget> m_blank;
};
