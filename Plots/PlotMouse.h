// What the mouse does on a plot's canvas.
//
//   | a click                             | tells of the point below it                  |
//   | left button, drawn                  | zooms to the rectangle; on a cursor moves it |
//   | middle button, or Ctrl and left     | pans                                         |
//   | wheel                               | zooms around the mouse                       |
//   | right click                         | shows all                                    |
//
// The values below the mouse stand beside it. Lives as long as its plot. GUI thread.
//
//   new CPlotMouse(plot);
#pragma once

#include <QObject>

class CPlot;
class QwtPlotPicker;
class QMouseEvent;
class QWheelEvent;

class CPlotMouse : public QObject
{
    Q_OBJECT

public:
    explicit CPlotMouse(CPlot *plot);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void ApplyColors();
    void TakeRect(const QPolygon &rect);
    void TakeWheel(const QWheelEvent &event);
    bool TakeMouse(const QMouseEvent &event);

    CPlot *const m_plot;
    QwtPlotPicker *const m_picker;
    int m_cursor = -1;  // that is being dragged
};
