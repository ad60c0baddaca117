#include "Plots/Plot.h"

#include <limits>

#include <QEvent>
#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_draw.h>

namespace {

constexpr int kScaleDigits = 9;

// Numbers as the pages show them: without the language's groups of digits.
class CPlainScale : public QwtScaleDraw
{
public:
    QwtText label(double value) const override { return QString::number(value, 'g', kScaleDigits); }
};

QwtText Title(const QString &words, const QFont &font)
{
    QwtText title(words);
    title.setFont(font);
    return title;
}

QwtPlotMarker *MakeCursor(QwtPlot *plot, const char *name)
{
    auto *cursor = new QwtPlotMarker;
    cursor->setLineStyle(QwtPlotMarker::VLine);
    cursor->setLabel(QwtText(QLatin1String(name)));
    cursor->setLabelAlignment(Qt::AlignTop | Qt::AlignRight);
    cursor->setItemAttribute(QwtPlotItem::Legend, false);
    cursor->setZ(100);
    cursor->attach(plot);
    cursor->hide();
    return cursor;
}

}  // namespace

CPlot::CPlot(QWidget *parent)
    : QwtPlot(parent),
      m_grid(new QwtPlotGrid), m_cursors{MakeCursor(this, "A"), MakeCursor(this, "B")}
{
    setAutoReplot(false);
    setAutoDelete(true);
    plotLayout()->setAlignCanvasToScales(true);
    m_grid->attach(this);
    for (const int axis : {xBottom, yLeft, yRight})
        setAxisScaleDraw(axis, new CPlainScale);
    auto *const legend = new QwtLegend;
    legend->setDefaultItemMode(QwtLegendData::Checkable);
    connect(legend, &QwtLegend::checked, this, [this](const QVariant &item, bool isOn) {
        for (size_t i = 0; i < m_curves.size(); ++i) {
            if (itemToInfo(m_curves[i].item) == item)
                ShowHidden(static_cast<int>(i), isOn);
        }
    });
    insertLegend(legend, QwtPlot::BottomLegend);
    ApplyColors();
}

// The items go with the plot, and the events must not come while they go.
CPlot::~CPlot()
{
    m_events = {};
}

void CPlot::SetShape(const SPlotShape &shape)
{
    setAxisTitle(xBottom, Title(shape.x, font()));
    setAxisTitle(yLeft, Title(shape.left, font()));
    setAxisTitle(yRight, Title(shape.right, font()));
    enableAxis(yRight, !shape.right.isEmpty());
    m_isLive = shape.isLive;
    setAccessibleName(shape.left + QStringLiteral(" over ") + shape.x);
}

void CPlot::SetCurves(const std::vector<SPlotCurve> &curves)
{
    for (const SShown &shown : m_curves)
        delete shown.item;
    m_curves.clear();
    for (const SPlotCurve &curve : curves) {
        auto *const item = new QwtPlotCurve(Title(curve.name, font()));
        auto *const points = new CCurvePoints(curve.x, curve.y);
        item->setSamples(points);
        item->setYAxis(curve.isOnRight ? yRight : yLeft);
        item->setLegendAttribute(QwtPlotCurve::LegendShowLine, curve.line != EPlotLine::None);
        item->setLegendAttribute(QwtPlotCurve::LegendShowSymbol);
        item->setLegendIconSize(QSize(24, 12));
        item->setPaintAttribute(QwtPlotCurve::ClipPolygons);
        item->attach(this);
        m_curves.push_back({.curve = curve, .item = item, .points = points});
    }
    updateLegend();
    for (size_t i = 0; i < m_curves.size(); ++i)
        ShowHidden(static_cast<int>(i), m_hidden.contains(m_curves[i].curve.name));
    ApplyColors();
    ShowData();
}

// checked: its entry in the legend is pressed, which hides the curve.
void CPlot::ShowHidden(int curve, bool isHidden)
{
    const SShown &shown = m_curves[static_cast<size_t>(curve)];
    const bool isOther = shown.item->isVisible() == isHidden;
    shown.item->setVisible(!isHidden);
    if (isHidden)
        m_hidden.insert(shown.curve.name);
    else
        m_hidden.remove(shown.curve.name);
    auto *const all = qobject_cast<QwtLegend *>(legend());
    if (auto *label = qobject_cast<QwtLegendLabel *>(all->legendWidget(itemToInfo(shown.item)))) {
        label->setChecked(isHidden);
        label->setToolTip(isHidden ? QStringLiteral("Show the curve")
                                   : QStringLiteral("Hide the curve"));
        QFont font = this->font();
        font.setStrikeOut(isHidden);
        QwtText text = label->text();
        text.setFont(font);
        label->setText(text);
    }
    if (!isOther)
        return;
    ShowData();
    if (m_events.onHidden)
        m_events.onHidden();
}

bool CPlot::IsShown(int curve) const
{
    return m_curves.at(static_cast<size_t>(curve)).item->isVisible();
}

SPlotFigures CPlot::FiguresInView(int curve) const
{
    const QRectF view = ViewRect();
    return m_curves.at(static_cast<size_t>(curve)).points->Figures(view.left(), view.right());
}

double CPlot::ValueAt(int curve, double x) const
{
    const CCurvePoints *points = m_curves.at(static_cast<size_t>(curve)).points;
    const int at = points->Nearest(x);
    return at < 0 ? std::numeric_limits<double>::quiet_NaN() : points->Point(at).y();
}

void CPlot::changeEvent(QEvent *event)
{
    QwtPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        ApplyColors();
        replot();
    }
}

void CPlot::resizeEvent(QResizeEvent *event)
{
    QwtPlot::resizeEvent(event);
    ThinAll();
    replot();
}
