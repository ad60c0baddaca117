// What undo needs of a calibration page, and the page's commands that it makes.
#include "View/pages/CalibrationDockWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QScopedValueRollback>
#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/editors/LateEditors.h"

namespace {

// 0, or the nearest value that the cell can have.
QString ZeroText(const QDoubleSpinBox *cell)
{
    return cell->textFromValue(qBound(cell->minimum(), 0.0, cell->maximum()));
}

}  // namespace

QList<QWidget *> CCalibrationDockWidget::DataMembers() const
{
    QList<QWidget *> members;
    for (QWidget *widget : Index().BoundWidgets()) {
        if (IsResultName(widget->objectName()) && !IsCaptionName(widget->objectName()))
            members.append(widget);
    }
    return members;
}

void CCalibrationDockWidget::ChangeCells(const QString &name, const CellChanges &changes)
{
    m_undo.ChangeCells(name, changes);
}

void CCalibrationDockWidget::ResetTables(const QString &reset, const QList<QTableWidget *> &tables)
{
    CellChanges zeros;
    for (QTableWidget *table : tables) {
        EnsureEditors(table);
        for (int r = 0; r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c) {
                if (const auto *cell = qobject_cast<QDoubleSpinBox *>(table->cellWidget(r, c)))
                    zeros.push_back(
                        {.table = table, .row = r, .column = c, .text = ZeroText(cell)});
            }
        }
    }
    m_undo.Reset(reset, zeros);
}

QStringList CCalibrationDockWidget::Selection() const
{
    QStringList texts;
    for (const QWidget *selector : m_form.selectors) {
        if (const auto *list = qobject_cast<const QComboBox *>(selector))
            texts.append(list->currentText());
    }
    return texts;
}

// As a user who goes from selector to selector. Each change may end in the page's end.
bool CCalibrationDockWidget::ShowSelection(const QStringList &selection)
{
    const QPointer<CCalibrationDockWidget> self(this);
    const QWidget *const window = parentWidget();
    int at = 0;
    for (QWidget *selector : QList<QWidget *>(m_form.selectors)) {
        auto *list = qobject_cast<QComboBox *>(selector);
        const QString text = list ? selection.value(at++) : QString();
        if (!list || list->currentText() == text)
            continue;
        TakeSnapshot();
        const int index = self ? list->findText(text) : -1;
        if (index < 0)
            return false;
        list->setCurrentIndex(index);
        if (!self || parentWidget() != window)
            return false;
    }
    ShowSelectionDetails();
    return Selection() == selection;
}

void CCalibrationDockWidget::ShowMemory()
{
    const QScopedValueRollback<bool> boxesWait(m_boxesWait, true);
    ShowDocument(m_viewCtrl->GetCalibrationData(m_page.item, PackageDocument()));
    ShowSelectionDetails();
}
