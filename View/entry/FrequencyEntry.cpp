#include "View/entry/FrequencyEntry.h"

#include <cmath>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableWidget>

#include "Model/NrBandwidth.h"
#include "View/editors/LateEditors.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/CellText.h"
#include "View/entry/FrequencyDialog.h"

namespace {

using Page = CAutoBindingDataModelDockWidget;

const QRegularExpression
    kFrequencyName(QStringLiteral("^cmdIf_request_group\\d+_memberProperty_(dl|ul)Frequency$"));

// The text of the page's first list of one of these members; empty when it has none.
QString ChoiceOf(const Page &page, const char *members)
{
    const QRegularExpression name(
        QStringLiteral("^cmdIf_request_group1_memberProperty_(%1)$").arg(QLatin1String(members)));
    const auto lists = page.findChildren<QComboBox *>(name);
    return lists.isEmpty() ? QString() : lists.first()->currentText().trimmed();
}

SFrequencyPlace PlaceOf(const Page &page, const QSpinBox &box)
{
    static const QRegularExpression kDigits(QStringLiteral("\\d+"));
    SFrequencyPlace place;
    place.band = ChoiceOf(page, "band");
    place.scsKhz = kDigits.match(ChoiceOf(page, "rxScs|txScs")).captured().toInt();
    place.channelKhz =
        ChannelKhz(ChoiceOf(page, "dlBw|dlBandwidth|ulBandwidth"), place.scsKhz).value_or(0);
    place.leastKhz = box.minimum();
    place.mostKhz = box.maximum();
    place.khz = box.value();
    return place;
}

// The dialog runs an event loop in which the page may go.
void Ask(Page *page, const QPointer<QSpinBox> &box)
{
    if (!box || !box->isEnabled())
        return;
    page->FinishEdit();
    if (!box)
        return;
    const QPointer<CFrequencyDialog> dialog = new CFrequencyDialog(PlaceOf(*page, *box), page);
    const bool isTaken = dialog->exec() == QDialog::Accepted && dialog && box;
    if (isTaken && TakenText(box, QString::number(dialog->Khz())))
        SetCellText(box, QString::number(dialog->Khz()));
    delete dialog;
}

// The cell that the user works on, or the first one.
QSpinBox *CellOf(const QTableWidget *table)
{
    EnsureEditors(table);
    for (QWidget *widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
        if (widget->parentWidget() == table->viewport())
            return qobject_cast<QSpinBox *>(widget);
    }
    return qobject_cast<QSpinBox *>(table->cellWidget(0, 0));
}

// From the lowest channel to the highest, on the raster. A cell that does not take its channel keeps
// what it has.
void Spread(Page *page, QTableWidget *table)
{
    EnsureEditors(table);
    CellChanges changes;
    const int last = table->columnCount() - 1;
    for (int column = 0; column <= last; ++column) {
        const auto *box = qobject_cast<QSpinBox *>(table->cellWidget(0, column));
        if (!box || !box->isEnabled())
            continue;
        const double share = last > 0 ? static_cast<double>(column) / last : 0;
        const double khz = ChannelKhzAt(PlaceOf(*page, *box), share);
        const QString text = QString::number(std::llround(khz));
        if (TakenText(box, text))
            changes.push_back({.table = table, .row = 0, .column = column, .text = text});
    }
    page->ChangeCells(QStringLiteral("Spread channels evenly"), changes);
}

QAction *AddEnter(QWidget *of, const std::function<void()> &act)
{
    QAction *const action =
        AddAction(of, "m_actionEnterFrequency", "&Enter a frequency...", {"Ctrl+Shift+F"}, act);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    return action;
}

}  // namespace

void AddFrequencyEntry(Page *page)
{
    for (QSpinBox *box : page->findChildren<QSpinBox *>(kFrequencyName))
        AddEnter(box, [page, box = QPointer<QSpinBox>(box)] { Ask(page, box); });
    for (QTableWidget *table : page->findChildren<QTableWidget *>(kFrequencyName)) {
        AddEnter(table, [page, table] { Ask(page, CellOf(table)); });
        AddAction(table, "m_actionSpreadChannels", "Spread channels e&venly", {"Ctrl+Shift+E"},
                  [page, table] { Spread(page, table); })
            ->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    }
}
