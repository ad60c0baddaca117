// Where the bench host and the tool stand on the screen: side by side at first, later where the user has
// left them.
//
// Takes the places in its constructor, before either window shows, and keeps them in the host's settings: a
// second after the last move, for a session that is killed, and when it is destroyed; then also the page in
// front and the division of the host's window. GUI thread.
//
//     CWindowPlaces places(host);
//     host.show();
//     return application.exec();
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>

class QMainWindow;

// The tool at the left in its own width, the host beside it: not narrower than hostLeast, if need be on top
// of the tool, and as high as the screen lets it be. Frames included.
struct SWindowPlaces
{
    QPoint tool;
    QPoint host;
    QSize hostSize;  // without the frame
};
SWindowPlaces SideBySide(const QRect &available, const QSize &tool, const QSize &hostLeast);

class CWindowPlaces : public QObject
{
    Q_OBJECT

public:
    explicit CWindowPlaces(QMainWindow &host);
    ~CWindowPlaces() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Restore();
    void Keep();

    QPointer<QMainWindow> m_host;
    QTimer m_keep;
};
