#include "View/engine/CellEntry.h"

#include <optional>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QStringList>
#include <QTableWidget>

#include "View/editors/UnsignedSpinBox.h"
#include "View/engine/CellText.h"

namespace {

constexpr int kMostLetters = 40;  // of a refused text
constexpr int kMostChoices = 12;

QString Shortened(const QString &text)
{
    return text.size() <= kMostLetters ? text : text.left(kMostLetters) + QLatin1String("...");
}

QString ChoicesOf(const QComboBox *list)
{
    QStringList choices;
    for (int i = 0; i < qMin(list->count(), kMostChoices); ++i)
        choices.append(list->itemText(i));
    if (list->count() > kMostChoices)
        choices.append(QStringLiteral("..."));
    return choices.join(QLatin1String(", "));
}

QString AllowedIn(const QWidget *editor)
{
    if (const auto *list = qobject_cast<const QComboBox *>(editor))
        return ChoicesOf(list);
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return CUnsignedSpinBox::ToText(line->m_minimum, line->m_base) + QLatin1Char('~') +
               CUnsignedSpinBox::ToText(line->m_maximum, line->m_base);
    const auto *box = qobject_cast<const QDoubleSpinBox *>(editor);
    const QString decimals =
        box ? QStringLiteral(", %1 decimals at most").arg(box->decimals()) : QString();
    return editor->toolTip() + decimals;
}

QString ReasonOf(const QWidget *editor, const QString &text)
{
    if (!editor || !IsChangeable(editor))
        return QStringLiteral("the cell cannot be changed now.");
    const QString allowed = QStringLiteral(" Allowed: ") + AllowedIn(editor) + QLatin1Char('.');
    if (text.trimmed().isEmpty())
        return QStringLiteral("there is no value for it.") + allowed;
    const QString quoted = QLatin1Char('"') + Shortened(text.trimmed()) + QLatin1Char('"');
    if (text.contains(QLatin1Char(',')) && !qobject_cast<const QComboBox *>(editor))
        return quoted + QStringLiteral(" has a comma; decimals take a point.") + allowed;
    return quoted + QStringLiteral(" is not allowed.") + allowed;
}

QString CaptionOf(const QTableWidget *table, int section, Qt::Orientation orientation)
{
    const QString caption =
        table->model()->headerData(section, orientation).toString().simplified();
    return caption.isEmpty() ? QString::number(section + 1) : caption;
}

}  // namespace

bool IsChangeable(const QWidget *editor)
{
    if (!editor || !editor->isEnabled())
        return false;
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(editor))
        return !box->isReadOnly();
    if (const auto *line = qobject_cast<const CUnsignedSpinBox *>(editor))
        return !line->isReadOnly();
    return qobject_cast<const QComboBox *>(editor);
}

SCheckedEntries CheckEntries(QTableWidget *table, const CellEntries &entries)
{
    SCheckedEntries checked;
    for (const SCellEntry &entry : entries) {
        const QWidget *editor = table->cellWidget(entry.row, entry.column);
        const QString shown = editor ? CellText(editor) : QString();
        if (editor && shown == entry.text.trimmed())
            continue;
        const std::optional<QString> taken = editor ? TakenText(editor, entry.text) : std::nullopt;
        if (taken && *taken == shown)
            continue;
        if (!taken || !IsChangeable(editor))
            return {.refusal = CaptionOf(table, entry.row, Qt::Vertical) + QLatin1String(", ") +
                               CaptionOf(table, entry.column, Qt::Horizontal) +
                               QLatin1String(": ") + ReasonOf(editor, entry.text)};
        checked.changes.push_back(
            {.table = table, .row = entry.row, .column = entry.column, .text = *taken});
    }
    return checked;
}
