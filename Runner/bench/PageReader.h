// A page as it is now: its members and tables with values, choices and limits, and its buttons.
//
// Reading changes nothing that a person sees. GUI thread.
//
//   const CPageReader reader(page, layout);
//   const QVector<SBenchMember> members = reader.Members(DocumentTextOf(page));
#pragma once

#include "Runner/bench/BenchTypes.h"

class CPageLayout;
class QAbstractButton;
class QDockWidget;
class QWidget;
struct SLayoutMember;
struct SLayoutTable;

// The document that a page says, by its invokable DocumentText(); empty when it has none.
QString DocumentTextOf(QWidget *page);

// Can a person see the widget on its page, once that is in front? Behind the tab of a tab bar counts, since
// a click brings it; a sheet of a stack that the page turns does not.
bool IsShownOn(const QWidget *page, const QWidget *widget);
// Is it on, as far as the page itself is?
bool IsOnAt(const QWidget *page, const QWidget *widget);

// Buttons that a person presses, in the order of the form.
QVector<QAbstractButton *> ButtonsOf(const QWidget *page);
SBenchButton ReadButton(const QWidget *page, const QAbstractButton *button);

class CPageReader
{
public:
    // Both outlive the reader.
    CPageReader(const QWidget *page, const CPageLayout &layout);

    // One as it is now, without its values.
    SBenchMember Member(const SLayoutMember &member) const;
    // All, but those that no table shows one by one: the columns of a result table.
    QVector<SBenchMember> Members(const QString &documentText) const;
    SBenchTable Table(const SLayoutTable &table, const QVector<SBenchMember> &members) const;
    QVector<SBenchTable> Tables(const QString &documentText) const;

private:
    const QWidget *const m_page;
    const CPageLayout &m_layout;
};

// Texts of a result table's column, and of its headers.
QString ResultText(const class QTableWidget *table, int row, int column);
QStringList HeaderTexts(const class QTableWidget *table, Qt::Orientation orientation);
