// A page with one table of dB values, 3 rows by 5 columns unless told, for tests that mark and change cells.
//
// The value of a cell is 10 * row + column. The page is the active window.
//
//   CCellGrid grid;
//   grid.Press(1, 1, Qt::Key_Right, Qt::ShiftModifier);
//   grid.Marked();   // "1,1 1,2"
#pragma once

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QtTest>

#include "View/editors/CellLook.h"
#include "View/editors/TableMark.h"
#include "tests/view/engine/TestPage.h"

class CCellGrid
{
public:
    static constexpr int kRows = 3;
    static constexpr int kColumns = 5;

    CCellGrid() : CCellGrid(Document("pointRange", "{'min':-30,'max':40}")) {}
    explicit CCellGrid(const CTestDocument &document)
        : m_page(document), m_table(m_page.AddTable("request.group2.row0"))
    {
        m_page.Init();
        QApplication::setActiveWindow(&m_page);
        QObject::connect(&m_page, &CTestPage::Signal_UpdateStatus, &m_page,
                         [this](const QString &text) { m_status = text; });
    }

    static CTestDocument Document(const QString &type, const QString &entry, int rows = kRows,
                                  int columns = kColumns)
    {
        CTestDocument document;
        document.ColumnTable("request.group2", columns);
        for (int r = 0; r < rows; ++r) {
            QStringList values;
            for (int c = 0; c < columns; ++c)
                values.append(QString("'%1'").arg(10 * r + c));
            document.Member(QString("request.group2.row%1").arg(r),
                            QString("{'caption':'Row %1','defaultSupport':1,"
                                    "'defaultEnableStatus':1,'trait':{'dataType':'%2','value':%3,"
                                    "'defaultValue':[%4]}}")
                                .arg(r)
                                .arg(type, entry, values.join(',')));
        }
        return document;
    }

    QWidget *Cell(int row, int column) const { return m_table->cellWidget(row, column); }
    QDoubleSpinBox *Box(int row, int column) const
    {
        return qobject_cast<QDoubleSpinBox *>(Cell(row, column));
    }
    QLineEdit *Text(int row, int column) const
    {
        return Cell(row, column)->findChild<QLineEdit *>();
    }
    CTableMark *Mark() const { return CTableMark::Of(m_table); }

    void Focus(int row, int column) const { Cell(row, column)->setFocus(Qt::TabFocusReason); }
    // To whatever has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1) const
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    // As the mouse does it, in the text inside the cell.
    void Click(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(Text(row, column), button, modifiers);
    }
    void MarkCells(int top, int left, int bottom, int right) const
    {
        Focus(top, left);
        Mark()->Clear();
        Mark()->SetCurrent(m_table->model()->index(top, left));
        Mark()->ExtendTo(m_table->model()->index(bottom, right));
    }

    // Of the cells that look marked.
    QString Marked() const
    {
        QStringList cells;
        for (int r = 0; r < m_table->rowCount(); ++r) {
            for (int c = 0; c < m_table->columnCount(); ++c) {
                if (HasCellLook(Cell(r, c), ECellLook::Marked))
                    cells.append(QString("%1,%2").arg(r).arg(c));
            }
        }
        return cells.join(' ');
    }
    // A row's numbers.
    QString Numbers(int row) const
    {
        QStringList numbers;
        for (int c = 0; c < m_table->columnCount(); ++c)
            numbers.append(QString::number(Box(row, c)->value()));
        return numbers.join(' ');
    }

    QString m_status;
    CTestPage m_page;
    QTableWidget *m_table;
};
