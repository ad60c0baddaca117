#include "View/access/FormWords.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QStringList>
#include <QTabWidget>

namespace {

// The grid that the widget stands in; it may be a layout inside that of its parent.
QGridLayout *GridOf(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent || !parent->layout())
        return nullptr;
    QList<QGridLayout *> grids = parent->layout()->findChildren<QGridLayout *>();
    if (auto *own = qobject_cast<QGridLayout *>(parent->layout()))
        grids.append(own);
    for (QGridLayout *grid : qAsConst(grids)) {
        if (grid->indexOf(const_cast<QWidget *>(widget)) >= 0)
            return grid;
    }
    return nullptr;
}

QString TextAt(const QGridLayout *grid, int row, int column)
{
    QLayoutItem *item = grid->itemAtPosition(row, column);
    const auto *label = item ? qobject_cast<const QLabel *>(item->widget()) : nullptr;
    return label ? label->text() : QString();
}

}  // namespace

SGridWords GridWords(const QWidget *widget)
{
    const QGridLayout *grid = GridOf(widget);
    if (!grid)
        return {};
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(const_cast<QWidget *>(widget)), &row, &column, &rows,
                          &columns);
    SGridWords words;
    for (int c = column - 1; c >= 0 && words.row.isEmpty(); --c)
        words.row = TextAt(grid, row, c);
    QStringList above;
    for (int r = 0; r < row; ++r) {
        const QString text = TextAt(grid, r, column);
        if (!text.isEmpty())
            above.append(text);
    }
    words.column = above.join(QLatin1Char(' '));
    return words;
}

QString TitleOf(const QWidget *widget)
{
    const QWidget *child = widget;
    for (const QWidget *around = widget->parentWidget(); around;
         child = around, around = around->parentWidget()) {
        const auto *box = qobject_cast<const QGroupBox *>(around);
        if (box && !box->title().isEmpty())
            return box->title();
        // Of a tab widget the page is a child of its stack.
        const auto *tabs = qobject_cast<const QTabWidget *>(around->parentWidget());
        const int tab = tabs ? tabs->indexOf(const_cast<QWidget *>(child)) : -1;
        if (tab >= 0)
            return tabs->tabText(tab);
        if (around->isWindow())
            break;
    }
    return {};
}
