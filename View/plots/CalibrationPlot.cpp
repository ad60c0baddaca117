#include "View/plots/CalibrationPlot.h"

#include <algorithm>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>

#include "View/editors/LateEditors.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/ColumnCells.h"

namespace {

constexpr int kPlotColors = 8;

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

bool IsSame(const SPlotCurve &a, const SPlotCurve &b)
{
    const auto isSameValue = [](float one, float other) {
        return one == other || (one != one && other != other);
    };
    return a.name == b.name && *a.x == *b.x &&
           std::equal(a.y->begin(), a.y->end(), b.y->begin(), b.y->end(), isSameValue);
}

QString RowCaption(const QTableWidget &table, int row)
{
    const QTableWidgetItem *caption = table.verticalHeaderItem(row);
    return caption ? caption->text() : QString::number(row);
}

}  // namespace

CCalibrationPlot::CCalibrationPlot(CAutoBindingDataModelDockWidget *page,
                                   const SCalibrationCurves &curves)
    : CPlotSource(page), m_page(page), m_is(curves)
{
    // What set a change off is done first, with all that follows from it.
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &CCalibrationPlot::Refresh);
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

QTableWidget *CCalibrationPlot::Table(const char *name) const
{
    return m_page->findChild<QTableWidget *>(QLatin1String(name));
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
        if (selector->objectName().startsWith(QLatin1String("calDataIf_config_")))
            connect(selector, &QComboBox::currentTextChanged, &m_refresh, refresh);
    }
    Follow(Table(m_is.frequencies));
    for (const SCurveTable &one : m_is.tables)
        Follow(Table(one.table));
    Read();
}

void CCalibrationPlot::Follow(QTableWidget *table)
{
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
    const std::vector<SPlotCurve> before = std::move(m_curves);
    m_curves.clear();
    m_rows.clear();
    m_columns.clear();
    QTableWidget *const frequencies = Table(m_is.frequencies);
    CColumnCells *const frequencyCells = CColumnCells::Of(frequencies);
    if (!frequencyCells || !HasCurves())
        return !before.empty();
    std::vector<std::pair<double, int>> columns;
    for (int c = 0; c < frequencies->columnCount(); ++c) {
        if (const double kHz = frequencyCells->Text(0, c).toDouble(); kHz > 0)
            columns.emplace_back(kHz / kKhzPerMhz, c);
    }
    std::sort(columns.begin(), columns.end());
    auto x = std::make_shared<Xs>();
    for (const auto &[frequency, column] : columns) {
        x->push_back(frequency);
        m_columns.push_back(column);
    }
    for (const SCurveTable &one : m_is.tables) {
        QTableWidget *const table = Table(one.table);
        CColumnCells *const cells = CColumnCells::Of(table);
        for (int r = 0; cells && r < table->rowCount(); ++r) {
            auto y = std::make_shared<Ys>();
            for (const int c : m_columns) {
                bool isNumber = false;
                const float value = cells->Text(r, c).toFloat(&isNumber);
                y->push_back(isNumber ? value : kNoValue);
            }
            m_curves.push_back({.name = QLatin1String(one.name) + RowCaption(*table, r),
                                .color = r % kPlotColors,
                                .line = one.line,
                                .hasPoints = true,
                                .x = x,
                                .y = y});
            m_rows.push_back({table, r});
        }
    }
    return !std::equal(before.begin(), before.end(), m_curves.begin(), m_curves.end(), IsSame);
}

// Not while the tool is busy: its pages stay where they are then.
void CCalibrationPlot::GoTo(int curve, int point)
{
    const auto isIn = [](int at, size_t size) { return at >= 0 && static_cast<size_t>(at) < size; };
    if (!isIn(curve, m_rows.size()) || !isIn(point, m_columns.size()) || !m_page->isVisible())
        return;
    const SRow row = m_rows[static_cast<size_t>(curve)];
    EnsureEditors(row.table);
    TurnTo(row.table);
    QWidget *const cell = row.table->cellWidget(row.row, m_columns[static_cast<size_t>(point)]);
    if (!cell || !cell->isEnabled())
        return;
    cell->window()->raise();
    cell->window()->activateWindow();
    cell->setFocus(Qt::OtherFocusReason);
}
