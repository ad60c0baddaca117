#include "Runner/bench/PageReader.h"

#include <QAbstractSpinBox>
#include <QDockWidget>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>

#include "Runner/bench/Editors.h"
#include "Runner/bench/PageLayout.h"
#include "Runner/bench/Units.h"

namespace {

QString WithoutMnemonic(QString text)
{
    text.replace(QLatin1String("&&"), QString(QChar(0)));
    text.remove('&');
    return text.replace(QChar(0), '&').trimmed();
}

QStringList ValuesOf(const QJsonObject &sections, const SBenchMember &member)
{
    const QJsonValue value = sections.value(member.section)
                                 .toObject()
                                 .value(member.group)
                                 .toObject()
                                 .value(QLatin1String("memberValue"))
                                 .toObject()
                                 .value(member.key);
    if (!value.isArray())
        return {value.toString().trimmed()};
    QStringList values;
    for (const QJsonValue &cell : value.toArray())
        values.append(cell.toString().trimmed());
    return values;
}

QJsonObject Sections(const QString &documentText)
{
    return InterfaceOf(QJsonDocument::fromJson(documentText.toUtf8()).object());
}

}  // namespace

QString DocumentTextOf(QWidget *page)
{
    QString text;
    QMetaObject::invokeMethod(page, "DocumentText", Qt::DirectConnection,
                              Q_RETURN_ARG(QString, text));
    return text;
}

bool IsShownOn(const QWidget *page, const QWidget *widget)
{
    for (const QWidget *at = widget; at && at != page; at = at->parentWidget()) {
        const auto *stack = qobject_cast<const QStackedWidget *>(at->parentWidget());
        const bool isTab = stack && qobject_cast<const QTabWidget *>(stack->parentWidget());
        if (stack && !isTab && stack->currentWidget() != at)
            return false;
        if (!stack && at->isHidden())
            return false;
    }
    return true;
}

bool IsOnAt(const QWidget *page, const QWidget *widget)
{
    return widget->isEnabledTo(const_cast<QWidget *>(page));
}

QVector<QAbstractButton *> ButtonsOf(const QWidget *page)
{
    QVector<QAbstractButton *> buttons;
    for (QAbstractButton *button : page->findChildren<QAbstractButton *>()) {
        const bool isKind =
            qobject_cast<QPushButton *>(button) || qobject_cast<QToolButton *>(button);
        if (isKind && !WithoutMnemonic(button->text()).isEmpty() &&
            !button->objectName().startsWith(QLatin1String("qt_")))
            buttons.append(button);
    }
    return buttons;
}

SBenchButton ReadButton(const QWidget *page, const QAbstractButton *button)
{
    return {.text = WithoutMnemonic(button->text()),
            .name = button->objectName(),
            .isEnabled = IsOnAt(page, button),
            .isShown = IsShownOn(page, button)};
}

QString ResultText(const QTableWidget *table, int row, int column)
{
    const QWidget *cell = table->cellWidget(row, column);
    if (const auto *label = qobject_cast<const QLabel *>(cell))
        return label->text().trimmed();
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(cell))
        return box->text().trimmed();
    if (const auto *line = qobject_cast<const QLineEdit *>(cell))
        return line->text().trimmed();
    const QTableWidgetItem *item = table->item(row, column);
    return item ? item->text().trimmed() : QString();
}

QStringList HeaderTexts(const QTableWidget *table, Qt::Orientation orientation)
{
    QStringList texts;
    const bool isColumns = orientation == Qt::Horizontal;
    const int count = isColumns ? table->columnCount() : table->rowCount();
    for (int i = 0; i < count; ++i) {
        const QTableWidgetItem *item =
            isColumns ? table->horizontalHeaderItem(i) : table->verticalHeaderItem(i);
        texts.append(item ? item->text().trimmed() : QString::number(i + 1));
    }
    return texts;
}

CPageReader::CPageReader(const QWidget *page, const CPageLayout &layout)
    : m_page(page), m_layout(layout)
{
}

// The first cell stands for its row: limits and choices of a row's cells are alike.
SBenchMember CPageReader::Member(const SLayoutMember &member) const
{
    SBenchMember now = member.known;
    QWidget *widget = member.widget;
    if (!widget)
        return now;
    now.isShown = IsShownOn(m_page, widget);
    now.isEnabled = IsOnAt(m_page, widget);
    auto *table = qobject_cast<QTableWidget *>(widget);
    if (member.kind == EGroupKind::Scalars || !table) {
        ReadEditor(widget, now);
        return now;
    }
    now.isCells = member.kind == EGroupKind::Cells;
    if (!now.isCells)
        return now;
    now.columns = HeaderTexts(table, Qt::Horizontal);
    now.isShown = now.isShown && !table->isRowHidden(member.row);
    const QTableWidgetItem *header = table->verticalHeaderItem(member.row);
    if (header && !header->text().trimmed().isEmpty())
        now.caption = header->text().trimmed();
    now.unit = UnitOf(now.caption);
    QWidget *cell = table->columnCount() > 0 ? CellEditor(table, member.row, 0) : nullptr;
    now.isEnabled = cell && IsOnAt(m_page, cell);
    if (cell)
        ReadEditor(cell, now);
    return now;
}

QVector<SBenchMember> CPageReader::Members(const QString &documentText) const
{
    const QJsonObject sections = Sections(documentText);
    QVector<SBenchMember> members;
    for (const SLayoutMember &member : m_layout.Members()) {
        if (member.kind == EGroupKind::Results)
            continue;
        members.append(Member(member));
        members.last().values = ValuesOf(sections, member.known);
    }
    return members;
}

SBenchTable CPageReader::Table(const SLayoutTable &table,
                               const QVector<SBenchMember> &members) const
{
    SBenchTable read;
    read.section = table.section;
    read.group = table.group;
    read.isResults = table.kind == EGroupKind::Results;
    const QTableWidget *widget = table.widget;
    if (!widget)
        return read;
    read.isShown = IsShownOn(m_page, widget);
    read.columns = HeaderTexts(widget, Qt::Horizontal);
    read.rows = HeaderTexts(widget, Qt::Vertical);
    if (!read.isResults) {
        for (const SBenchMember &member : members) {
            if (member.section == table.section && member.group == table.group)
                read.values.append(member.values);
        }
        return read;
    }
    for (const QString &header : qAsConst(read.columns))
        read.units.append(UnitOf(header));
    for (const SLayoutMember &member : m_layout.Members()) {
        if (member.known.section == table.section && member.known.group == table.group)
            read.keys.append(member.known.key);
    }
    for (int row = 0; row < widget->rowCount(); ++row) {
        QStringList values;
        for (int column = 0; column < widget->columnCount(); ++column)
            values.append(ResultText(widget, row, column));
        read.values.append(values);
    }
    return read;
}

QVector<SBenchTable> CPageReader::Tables(const QString &documentText) const
{
    const QVector<SBenchMember> members = Members(documentText);
    QVector<SBenchTable> tables;
    for (const SLayoutTable &table : m_layout.Tables())
        tables.append(Table(table, members));
    return tables;
}
