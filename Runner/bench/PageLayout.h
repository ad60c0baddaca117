// What a page consists of, read once: the members of its document that have a widget, and the widgets.
//
// A member's widget is found by its object name, which is the path of the member with "_" for each
// point; the widget of a table bears the name of one of its members. What changes later (values, choices,
// limits, whether something is on) is not here. The widgets may go at any time. GUI thread.
//
//   const CPageLayout layout(page, documentText);
//   for (const SLayoutMember &member : layout.Members()) ...
#pragma once

#include <QJsonObject>
#include <QPointer>
#include <QTableWidget>
#include <QVector>
#include <QWidget>

#include "Runner/bench/BenchTypes.h"

class QDockWidget;

enum class EGroupKind
{
    Scalars = 1,
    Results = 2,  // a row table
    Cells = 3,    // a column table
};

struct SLayoutMember
{
    SBenchMember known;  // what does not change; the rest is as made
    EGroupKind kind = EGroupKind::Scalars;
    QPointer<QWidget> widget = {};  // of a table's member the table
    int row = 0;                    // of a column table, or column of a row table
};

struct SLayoutTable
{
    QString section;
    QString group;
    EGroupKind kind = EGroupKind::Cells;
    QPointer<QTableWidget> widget = {};
};

class CPageLayout
{
public:
    CPageLayout() = default;  // of a page without a document
    // documentText: what the page says of itself.
    CPageLayout(const QWidget *page, const QString &documentText);

    const QVector<SLayoutMember> &Members() const { return m_members; }
    const QVector<SLayoutTable> &Tables() const { return m_tables; }

private:
    void AddSection(const QWidget *page, const QString &interface, const QString &section,
                    const QJsonObject &groups);
    void AddGroup(const QWidget *page, const QString &path, const SBenchMember &place,
                  const QJsonObject &group);

    QVector<SLayoutMember> m_members;
    QVector<SLayoutTable> m_tables;
};

// The document's object behind its one root, cmdIf or calDataIf; the key of the root goes into name.
QJsonObject InterfaceOf(const QJsonObject &document, QString *name = nullptr);
