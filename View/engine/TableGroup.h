// What a table binds to: the group of its document, read once for a walk over the table.
//
// A column table shows one row a supported member (defaultSupport exactly 1), in list order, and
// one column an element of the members' arrays. Values only; GUI thread.
//
//   const STableGroup group(m_dataModel, path);
//   for (const QString &member : group.rows) ...
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QTableWidget>

struct STableGroup
{
    STableGroup(const QJsonObject &document, const QString &memberPath);

    // Something below memberProperty, such as Member("freq", "trait.dataType").
    QJsonValue Member(const QString &member, const char *subPath) const;
    // Captions of the members given.
    QStringList Captions(const QStringList &of) const;

    QJsonObject properties;  // memberProperty
    QStringList members;     // memberList
    QStringList rows;        // members that a column table shows
    QJsonArray instances;    // instanceList, rows of a row table: texts, maybe tens of thousands
    int columns = 0;         // dimentionCount, held to what a table can sensibly show
    QJsonObject group;
};

// Element c of an array that may be shorter: its last element repeats; undefined when it is empty.
QJsonValue ColumnElement(const QJsonArray &array, int column);
QStringList ToStringList(const QJsonArray &array);

// Takes the cells of a row table's rows out of the document, and leaves the rows in its list, so
// that the next row gets the next number. For a document whose rows are all on the table: it goes
// back and forth between threads as text, and cells that nobody reads again would be most of it. A
// table of such a document is appended to alone: Update would show the missing cells as empty ones.
// A document without such a group is left as it is.
void DropRowCells(QJsonObject &document, const QString &memberPath);

// The widget as a table; null, with the failure on the critical log, when it is of another class.
QTableWidget *AsTable(QWidget *widget, const char *failure);
