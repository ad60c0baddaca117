#include "View/pages/ScrollPane.h"

#include <QApplication>
#include <QResizeEvent>

namespace {

constexpr int kLeastLines = 4;  // of text, that stay in view
constexpr int kLeastChars = 40;

}  // namespace

CScrollPane::CScrollPane(QWidget *parent) : QScrollArea(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { ShowFocus(now); });
}

// Qt's own hint ends at 24 lines, and knows nothing of labels that wrap.
QSize CScrollPane::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    QSize size = widget()->sizeHint();
    if (widget()->hasHeightForWidth())
        size.setHeight(widget()->heightForWidth(width()));
    return size;
}

QSize CScrollPane::minimumSizeHint() const
{
    const QFontMetrics text = fontMetrics();
    const QSize least(kLeastChars * text.averageCharWidth(), kLeastLines * text.height());
    return widget() ? least.boundedTo(widget()->minimumSizeHint()) : least;
}

// The contents have grown or shrunk: the page must lay itself out anew.
bool CScrollPane::event(QEvent *event)
{
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return isDone;
}

void CScrollPane::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        updateGeometry();
}

void CScrollPane::ShowFocus(QWidget *now)
{
    if (now && isAncestorOf(now))
        ensureWidgetVisible(now);
}
