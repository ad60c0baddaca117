#include "View/pages/CalibrationTables.h"

#include <algorithm>

#include <QAbstractButton>
#include <QEvent>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include "View/engine/ColumnCells.h"

namespace {

// Holds a table's row captions, and the corner above them, where the scroll area's left edge is.
// The table lays both out anew at its own left edge whenever its size changes.
class CCaptionPin : public QObject
{
public:
    CCaptionPin(QScrollArea *area, QTableWidget *table)
        : QObject(table), m_bar(area->horizontalScrollBar()), m_header(table->verticalHeader()),
          m_corner(table->findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly))
    {
        m_header->installEventFilter(this);
        connect(m_bar, &QScrollBar::valueChanged, this, &CCaptionPin::Place);
        Place();
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            Place();
        return QObject::eventFilter(object, event);
    }

private:
    void Place()
    {
        const int x = m_bar->value();
        for (QWidget *part : {static_cast<QWidget *>(m_header), static_cast<QWidget *>(m_corner)}) {
            if (!part)
                continue;
            if (part->x() != x)
                part->move(x, part->y());
            part->raise();
        }
    }

    QScrollBar *m_bar;
    QHeaderView *m_header;
    QAbstractButton *m_corner;
};

}  // namespace

void PinRowCaptions(QScrollArea *area, QTableWidget *table)
{
    new CCaptionPin(area, table);
}

void ScrollTogether(const QList<QScrollBar *> &bars)
{
    QScrollBar *const lead = bars.first();
    for (QScrollBar *from : bars) {
        // One on a covered page has no range to follow in; it catches up when it gets one.
        if (from != lead)
            QObject::connect(from, &QScrollBar::rangeChanged, lead,
                             [from, lead] { from->setValue(lead->value()); });
        for (QScrollBar *to : bars) {
            if (from != to)
                QObject::connect(from, &QScrollBar::valueChanged, to, &QScrollBar::setValue);
        }
    }
}

void AlignColumns(const QList<QTableWidget *> &tables)
{
    int captionWidth = 0;
    int columnWidth = 0;
    for (const QTableWidget *table : tables) {
        captionWidth = std::max(captionWidth, table->verticalHeader()->sizeHint().width());
        CColumnCells *cells = CColumnCells::Of(table);
        for (int r = 0; r < table->rowCount(); ++r) {
            // All cells of a row have the same limits, and with them the same room that they need.
            if (const int width = cells ? cells->WidthHint(r) : 0; width > 0)
                columnWidth = std::max({columnWidth, table->columnWidth(0), width});
        }
    }
    for (QTableWidget *table : tables) {
        table->verticalHeader()->setMinimumWidth(captionWidth);
        for (int c = 0; c < table->columnCount(); ++c)
            table->setColumnWidth(c, columnWidth);
    }
}
