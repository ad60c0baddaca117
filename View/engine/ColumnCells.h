// The cells of a column table: values first, editors when somebody looks (LateEditors.h).
//
// Until the editors are made, a row keeps the values that its cells start with, and from the first
// reading or Update on their texts, as editors would show them. What an editor makes of a value,
// its limits and its decimals, one scratch editor a kind of row says, which is made like a cell and
// is never seen. So the texts are the editors' byte for byte, and there is no second copy of their
// rules. From then on the editors alone have the values. GUI thread; lives as long as its table.
//
//   auto *cells = new CColumnCells(table, page, edits);
//   cells->AddRow(0, {.type = type, .wish = wish, .defaults = {"1.5", "2"}});
//   cells->Show(0, 1, *type, member, "2.25");
//   cells->Text(0, 1, *type);   // "2.25000"
#pragma once

#include <vector>

#include <QJsonArray>
#include <QPointer>
#include <QStringList>

#include "View/editors/EditSession.h"
#include "View/editors/LateEditors.h"
#include "View/engine/ChangeRecorder.h"
#include "View/engine/DataType.h"

// A row, as its cells are made.
struct SColumnRow
{
    const SDataType *type = nullptr;
    SCellWish wish = {};       // of each cell, but for its value
    QJsonArray defaults = {};  // the values, by column; the last one repeats
    bool isEnabled = true;
    bool isChecked = false;  // against ranges, when an edit ends
    QString ranges = {};
    int member = -1;  // id, of CChangeRecorder
};

class CColumnCells : public CLateEditors
{
    Q_OBJECT

public:
    // page has the slots of range checks, edits and changes watch the editors; all of them may go
    // before the table.
    CColumnCells(QTableWidget *table, QWidget *page, CEditSession *edits, CChangeRecorder *changes);
    ~CColumnCells() override;

    // Null when the table has no such cells.
    static CColumnCells *Of(const QWidget *table);

    // row: of the table, which has its columns by now. A row that is not added has no cells.
    void AddRow(int row, const SColumnRow &content);
    // The text of a cell; null when there is no such cell, or none of this type.
    QString Text(int row, int column, const SDataType &type);
    QString Text(int row, int column);
    // Shows a value of the document in a cell of this type; another one stays as it is.
    void Show(int row, int column, const SDataType &type, const QJsonObject &member,
              const QString &text);
    // The width in pixels that the first cell of a row asks for; 0 when the row has none.
    int WidthHint(int row);

protected:
    void Make() override;

private:
    struct SRow
    {
        SColumnRow content = {};
        QStringList texts = {};  // empty until they are asked for
        bool isShown = false;    // Show has written a text
        QWidget *scratch = nullptr;
    };

    SRow *Row(int row, int column);
    QWidget *Editor(int row, int column, const SDataType &type) const;
    QStringList &Texts(SRow &row);
    QWidget *Scratch(SRow &row);
    void RemoveScratches();
    void MakeRow(int row, SRow &from);
    QWidget *MakeCell(const SRow &from, int column) const;

    const QPointer<QWidget> m_page;
    const QPointer<CEditSession> m_edits;
    const QPointer<CChangeRecorder> m_changes;
    std::vector<SRow> m_rows;
    std::vector<QPointer<QWidget>> m_scratches;  // one a kind of row
};
