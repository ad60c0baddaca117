#include "tests/fuzz/engine/FuzzUser.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QWheelEvent>

#include "View/editors/LateEditors.h"
#include "tests/fuzz/engine/FuzzVariant.h"

namespace {

constexpr int kNotch = 120;  // eighths of a degree

// The editor itself, or the cell of a table that the byte names; null when the user can't reach it.
QWidget *Reachable(QWidget *editor, uint8_t how)
{
    QWidget *found = editor;
    if (auto *table = qobject_cast<QTableWidget *>(editor)) {
        EnsureEditors(table);
        const int cells = table->rowCount() * table->columnCount();
        const int cell = cells > 0 ? how % cells : 0;
        found = cells > 0
                    ? table->cellWidget(cell / table->columnCount(), cell % table->columnCount())
                    : nullptr;
    }
    return found && found->isVisible() && found->isEnabled() ? found : nullptr;
}

QLineEdit *TextFieldOf(QWidget *editor)
{
    auto *field = qobject_cast<QLineEdit *>(editor);
    if (!field && qobject_cast<QAbstractSpinBox *>(editor))
        field = editor->findChild<QLineEdit *>();
    return field;
}

void Press(QWidget *widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

}  // namespace

void FuzzUser::Change(QWidget *editor, uint8_t how)
{
    QWidget *widget = Reachable(editor, how);
    if (auto *list = qobject_cast<QComboBox *>(widget)) {
        if (list->count() > 0)
            list->setCurrentIndex(how % list->count());
    } else if (auto *box = qobject_cast<QCheckBox *>(widget)) {
        box->click();
    } else if (auto *number = qobject_cast<QSpinBox *>(widget)) {
        if (how % 4 == 0)
            number->setValue(how % 8 == 0 ? number->minimum() : number->maximum());
        else
            number->stepBy(how - 128);
    } else if (auto *point = qobject_cast<QDoubleSpinBox *>(widget)) {
        if (how % 4 == 0)
            point->setValue(how % 8 == 0 ? point->minimum() : point->maximum());
        else
            point->stepBy(how - 128);
    } else if (QLineEdit *field = TextFieldOf(widget)) {
        field->insert(QString(QLatin1Char(static_cast<char>(how % 128))));
    }
}

void FuzzUser::Type(QWidget *editor, uint8_t how)
{
    QWidget *widget = Reachable(editor, how);
    QLineEdit *field = TextFieldOf(widget);
    if (!field)
        return;
    field->selectAll();
    field->insert(FuzzText(how / 2));
    if (how % 2 == 0)
        Press(widget, Qt::Key_Return);
}

void FuzzUser::Wheel(QWidget *editor, uint8_t how)
{
    QWidget *widget = Reachable(editor, how);
    if (!widget)
        return;
    const QPointF place(2, 2);
    QWheelEvent turn(place, widget->mapToGlobal(place.toPoint()), QPoint(),
                     QPoint(0, how % 2 == 0 ? kNotch : -kNotch), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &turn);
}

void FuzzUser::Focus(QWidget *editor, uint8_t how)
{
    if (QWidget *widget = Reachable(editor, how))
        widget->setFocus();
}
