// Where the bench host and the tool stand on the screen: side by side at first, later where the user has
// left them.
//
// Takes the places in its constructor, before either window shows, and keeps them when it is destroyed, in
// the host's settings, along with the page in front and the division of the host's window. GUI thread.
//
//     CWindowPlaces places(host);
//     host.show();
//     return application.exec();
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

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

class CWindowPlaces
{
public:
    explicit CWindowPlaces(QMainWindow &host);
    ~CWindowPlaces();
    CWindowPlaces(const CWindowPlaces &) = delete;
    CWindowPlaces &operator=(const CWindowPlaces &) = delete;

private:
    void Restore();

    QPointer<QMainWindow> m_host;
};
