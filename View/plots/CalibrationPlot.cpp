#include "View/plots/CalibrationPlot.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>

#include "View/editors/LateEditors.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/plots/SecondImage.h"

namespace {

bool IsConfig(const QWidget *selector)
{
    return selector->objectName().startsWith(QLatin1String("calDataIf_config_"));
}

// Turns all tab widgets and stacks around the widget to it.
void TurnTo(QWidget *widget)
{
    for (QWidget *child = widget; child->parentWidget(); child = child->parentWidget()) {
        auto *const stack = qobject_cast<QStackedWidget *>(child->parentWidget());
        if (!stack)
            continue;
        if (auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget()))
            tabs->setCurrentWidget(child);
        else
            stack->setCurrentWidget(child);
    }
}

}  // namespace

CCalibrationPlot::CCalibrationPlot(CAutoBindingDataModelDockWidget *page,
                                   const SCalibrationCurves &curves, CSecondImage *second)
    : CPlotSource(page), m_page(page), m_is(curves), m_second(second)
{
    // What set a change off is done first, with all that follows from it.
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &CCalibrationPlot::Refresh);
    connect(m_second, &CSecondImage::Signal_Changed, this, [this] {
        Read();
        emit Signal_Curves();
    });
}

ISecondImage *CCalibrationPlot::Second()
{
    return m_second;
}

SPlotShape CCalibrationPlot::Shape() const
{
    return {.x = QLatin1String(m_is.x), .left = QLatin1String(m_is.left)};
}

QString CCalibrationPlot::Remark() const
{
    return HasCurves() ? QStringLiteral("A click on a point goes to its cell.")
                       : QString::fromLatin1(m_is.otherwise);
}

QString CCalibrationPlot::Status() const
{
    if (!m_second->IsThere() || m_second->IsUnderWay() || m_hasSecond || !HasCurves())
        return m_second->Words();
    return QStringLiteral("%1 has no data of what the page has selected.").arg(m_second->Name());
}

std::vector<SPlotCurve> CCalibrationPlot::Curves() const
{
    std::vector<SPlotCurve> curves;
    for (const SCalibrationCurve &each : m_curves)
        curves.push_back(each.curve);
    return curves;
}

// What its selectors show, each name with its text.
QString CCalibrationPlot::Selection() const
{
    QStringList selection;
    for (const QComboBox *selector : m_page->findChildren<QComboBox *>()) {
        if (IsConfig(selector))
            selection.append(selector->objectName() + QLatin1Char('=') + selector->currentText());
    }
    return selection.join(QLatin1Char('\n'));
}

bool CCalibrationPlot::HasCurves() const
{
    if (!m_is.selector)
        return true;
    const auto *selector = m_page->findChild<QComboBox *>(QLatin1String(m_is.selector));
    return selector && selector->currentText() == QLatin1String(m_is.selected);
}

// Editors tell of edits. Before they are made, cells change with the selection alone, and at the end of a
// flow, when the page is no longer busy.
void CCalibrationPlot::Open()
{
    const auto refresh = QOverload<>::of(&QTimer::start);
    connect(m_page, &CAutoBindingDataModelDockWidget::Signal_PluginIsBusy, &m_refresh, refresh);
    connect(m_page, &CAutoBindingDataModelDockWidget::Signal_InitDone, &m_refresh, refresh);
    for (QComboBox *selector : m_page->findChildren<QComboBox *>()) {
        if (IsConfig(selector))
            connect(selector, &QComboBox::currentTextChanged, &m_refresh, refresh);
    }
    Follow(m_is.curves.frequencies);
    for (const SCurveTable &one : m_is.curves.tables)
        Follow(one.table);
    Read();
}

void CCalibrationPlot::Follow(const char *name)
{
    auto *const table = m_page->findChild<QTableWidget *>(QLatin1String(name));
    if (!table)
        return;
    WhenEditorsAreMade(table, this, [this, table] {
        const auto refresh = QOverload<>::of(&QTimer::start);
        for (int r = 0; r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c) {
                QWidget *const cell = table->cellWidget(r, c);
                if (auto *box = qobject_cast<QDoubleSpinBox *>(cell))
                    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), &m_refresh,
                            refresh);
                else if (auto *box = qobject_cast<QSpinBox *>(cell))
                    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), &m_refresh, refresh);
            }
        }
    });
}

void CCalibrationPlot::Refresh()
{
    if (Read())
        emit Signal_Curves();
}

// False when nothing is other than before.
bool CCalibrationPlot::Read()
{
    const std::vector<SCalibrationCurve> before = std::move(m_curves);
    m_curves.clear();
    m_hasSecond = false;
    if (HasCurves()) {
        m_curves = MakeCurves(m_page, m_is.curves, ShownTexts);
        AddSecond();
    }
    return !AreSame(before, m_curves);
}

void CCalibrationPlot::AddSecond()
{
    const QJsonObject &document = m_second->Document(m_second->IsThere() ? Selection() : QString());
    if (document.isEmpty())
        return;
    m_hasSecond = true;
    const auto texts = [&document](const QTableWidget *table) {
        return DocumentTexts(document, table);
    };
    for (SCalibrationCurve &second : MakeCurves(m_page, m_is.curves, texts)) {
        second.curve.name += QStringLiteral(" (%1)").arg(m_second->Name());
        second.curve.isThin = true;
        second.curve.hasPoints = false;
        m_curves.push_back(std::move(second));
    }
}

// Not while the tool is busy: its pages stay where they are then.
void CCalibrationPlot::GoTo(int curve, int point)
{
    const auto isIn = [](int at, size_t size) { return at >= 0 && static_cast<size_t>(at) < size; };
    if (!isIn(curve, m_curves.size()) || !m_page->isVisible())
        return;
    const SCalibrationCurve &from = m_curves[static_cast<size_t>(curve)];
    if (!isIn(point, from.columns->size()))
        return;
    EnsureEditors(from.table);
    TurnTo(from.table);
    QWidget *const cell =
        from.table->cellWidget(from.row, (*from.columns)[static_cast<size_t>(point)]);
    if (!cell || !cell->isEnabled())
        return;
    cell->window()->raise();
    cell->window()->activateWindow();
    cell->setFocus(Qt::OtherFocusReason);
}
