// A row table of a document (groupType 2), while its rows are added or cleared.
//
// A table grows for days, so a new row must not touch the old ones. The constructor therefore takes
// the table out of the document and the destructor puts it back: what a document still holds is
// shared, and Qt copies a shared level whole at the first write (docs/decisions/0005). Between the
// two the document has an empty table; nobody else may use it.
//
// The cell of row R and member M is <group>.memberProperty.M.R.defaultValue, a text; R counts from
// 1 on. A member that the group lacks gets no cells. Nothing fails outward.
//
//   CRowTable table(document, "cmdIf.response.group1", {"BadBLK", "GoodBLK"});
//   table.AddRow({"1", "3"});
#pragma once

#include <vector>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

class CRowTable
{
public:
    CRowTable(QJsonObject &document, const QString &group, const QStringList &members);
    ~CRowTable();
    CRowTable(const CRowTable &) = delete;
    CRowTable &operator=(const CRowTable &) = delete;

    // Adds a row under the next number, with a text a member.
    void AddRow(const QStringList &texts);
    // Removes all rows that are listed; the next one has number 1.
    void Clear();

private:
    struct SColumn
    {
        QString member;
        bool exists;
        QJsonObject content;  // the member's object: its rows among its properties
    };

    QJsonObject &m_document;
    const QString m_memberPath;
    const QString m_rowPath;
    bool m_hasMembers = false;
    QJsonObject m_members;  // without the contents of m_columns
    QJsonArray m_rows;
    std::vector<SColumn> m_columns;
};
