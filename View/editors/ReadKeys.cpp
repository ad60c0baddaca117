#include "View/editors/ReadKeys.h"

#include <QKeyEvent>
#include <QTableWidget>

#include "View/editors/TableMark.h"

namespace {

constexpr int kAll = 1 << 24;  // steps that no table has

struct SReadStep
{
    int rows = 0;
    int columns = 0;
};

SReadStep ReadStep(const QTableWidget *table, int key, bool isFar)
{
    const int far = isFar ? kAll : 1;
    const int view = qMax(1, table->viewport()->height() / qMax(1, table->rowHeight(0)) - 1);
    switch (key) {
    case Qt::Key_Up:
        return {.rows = -far};
    case Qt::Key_Down:
        return {.rows = far};
    case Qt::Key_Left:
        return {.columns = -far};
    case Qt::Key_Right:
        return {.columns = far};
    case Qt::Key_PageUp:
        return {.rows = -view};
    case Qt::Key_PageDown:
        return {.rows = view};
    case Qt::Key_Home:
        return {.rows = isFar ? -kAll : 0, .columns = -kAll};
    case Qt::Key_End:
        return {.rows = isFar ? kAll : 0, .columns = kAll};
    default:
        return {};
    }
}

}  // namespace

bool PressReadKey(const QTableWidget *table, CTableMark *mark, const QKeyEvent *event)
{
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool isFar = modifiers & Qt::ControlModifier;
    const SReadStep step = ReadStep(table, event->key(), isFar);
    const bool isKnown = !(modifiers & ~(Qt::ControlModifier | Qt::ShiftModifier));
    if (!isKnown || (step.rows == 0 && step.columns == 0))
        return false;
    if (!(modifiers & Qt::ShiftModifier) || !mark->Current().isValid())
        mark->Go(step.rows, step.columns);
    else
        mark->Extend(step.rows, step.columns);
    return true;
}
