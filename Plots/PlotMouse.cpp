#include "Plots/PlotMouse.h"

#include <cmath>

#include <QMouseEvent>
#include <QPalette>
#include <QWheelEvent>
#include <qwt_picker_machine.h>
#include <qwt_plot_panner.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_map.h>

#include "Plots/Plot.h"

namespace {

constexpr int kClickReach = 4;      // pixels; less is a click, not a rectangle
constexpr double kWheelStep = 0.8;  // of what is seen, for a notch
constexpr double kNotch = 120;

QwtPlotPicker *MakePicker(CPlot *plot)
{
    auto *picker = new QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::RectRubberBand,
                                     QwtPicker::AlwaysOn, plot->canvas());
    picker->setStateMachine(new QwtPickerDragRectMachine);
    return picker;
}

}  // namespace

CPlotMouse::CPlotMouse(CPlot *plot) : QObject(plot), m_plot(plot), m_picker(MakePicker(plot))
{
    for (const auto &[button, key] : {std::pair(Qt::MiddleButton, Qt::NoModifier),
                                      std::pair(Qt::LeftButton, Qt::ControlModifier)}) {
        auto *panner = new QwtPlotPanner(plot->canvas());
        panner->setMouseButton(button, key);
        panner->setAxisEnabled(QwtPlot::yRight, false);
        connect(panner, &QwtPanner::panned, this, [this] { m_plot->SetView(m_plot->ViewRect()); });
    }
    connect(m_picker, QOverload<const QPolygon &>::of(&QwtPicker::selected), this,
            &CPlotMouse::TakeRect);
    plot->canvas()->setCursor(Qt::CrossCursor);
    // The last filter is asked first.
    plot->canvas()->installEventFilter(this);
    ApplyColors();
}

void CPlotMouse::ApplyColors()
{
    const QColor text = m_plot->palette().color(QPalette::Text);
    m_picker->setRubberBandPen(text);
    m_picker->setTrackerPen(text);
}

bool CPlotMouse::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        TakeWheel(*static_cast<QWheelEvent *>(event));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return TakeMouse(*static_cast<QMouseEvent *>(event));
    case QEvent::PaletteChange:
        ApplyColors();
        return false;
    default:
        return QObject::eventFilter(object, event);
    }
}

// True when the event is for a cursor, or for all to be shown, and nobody else gets it.
bool CPlotMouse::TakeMouse(const QMouseEvent &event)
{
    if (event.type() == QEvent::MouseButtonPress) {
        if (event.button() == Qt::RightButton)
            m_plot->ShowAll();
        else if (event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier)
            m_cursor = m_plot->CursorAt(event.pos());
        return m_cursor >= 0 || event.button() == Qt::RightButton;
    }
    if (m_cursor < 0)
        return false;
    if (event.type() == QEvent::MouseButtonRelease)
        m_cursor = -1;
    else
        m_plot->MoveCursor(m_cursor,
                           m_plot->canvasMap(QwtPlot::xBottom).invTransform(event.pos().x()));
    return true;
}

void CPlotMouse::TakeRect(const QPolygon &polygon)
{
    if (polygon.isEmpty())
        return;
    const QRect rect = QRect(polygon.first(), polygon.last()).normalized();
    if (rect.width() < kClickReach && rect.height() < kClickReach) {
        m_plot->ClickAt(polygon.first());
        return;
    }
    const QwtScaleMap x = m_plot->canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = m_plot->canvasMap(QwtPlot::yLeft);
    m_plot->SetView(QRectF(QPointF(x.invTransform(rect.left()), y.invTransform(rect.bottom())),
                           QPointF(x.invTransform(rect.right()), y.invTransform(rect.top()))));
}

void CPlotMouse::TakeWheel(const QWheelEvent &event)
{
    const double factor = std::pow(kWheelStep, event.angleDelta().y() / kNotch);
    const QPointF at(m_plot->canvasMap(QwtPlot::xBottom).invTransform(event.position().x()),
                     m_plot->canvasMap(QwtPlot::yLeft).invTransform(event.position().y()));
    const QRectF view = m_plot->ViewRect();
    m_plot->SetView(
        QRectF(at + (view.topLeft() - at) * factor, at + (view.bottomRight() - at) * factor));
}
