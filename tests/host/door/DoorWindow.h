// The door panel in a window, on the simulated DUT, in a test's hands.
//
//     class DoorPanelTest : public QObject, protected CDoorWindow
//     MakeCalls(3);
//     ClickRow(1);
//     QTRY_COMPARE(Field("result"), QString("Success (0)"));
#pragma once

#include <memory>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include "DoorDut.h"
#include "Host/door/DoorPanel.h"
#include "tests/common/GoodCommands.h"

class CDoorWindow
{
protected:
    void Open();
    void Close() { m_panel.reset(); }
    template <class Widget>
    Widget *Find(const char *name) const
    {
        return m_panel->findChild<Widget *>(name);
    }
    QTableView *Calls() const { return Find<QTableView>("m_calls"); }
    QTableView *Fields() const { return Find<QTableView>("m_fields"); }
    QString Text(const char *label) const { return Find<QLabel>(label)->text(); }
    static QString Cell(const QTableView *table, int row, int column)
    {
        return table->model()->index(row, column).data().toString();
    }
    int Rows() const { return Calls()->model()->rowCount(); }
    void ClickRow(int row, Qt::KeyboardModifiers keys = {});
    void Press(const char *button);
    // Value of a field, or nothing.
    QString Field(const QString &name, int column = 1) const;
    // Calls of GetDlFreq.
    void MakeCall(uint32_t handle = 1);
    void MakeCalls(int count);
    static QString Clipboard() { return QGuiApplication::clipboard()->text(); }

    std::unique_ptr<CDoorDut> m_dut = std::make_unique<CDoorDut>();
    std::unique_ptr<CDoorPanel> m_panel;
};

inline void CDoorWindow::Open()
{
    m_dut->Reset();
    m_panel = std::make_unique<CDoorPanel>(*m_dut->Simulated());
    m_panel->resize(760, 500);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

inline void CDoorWindow::ClickRow(int row, Qt::KeyboardModifiers keys)
{
    const QModelIndex index = Calls()->model()->index(row, 2);
    Calls()->scrollTo(index);
    QTest::mouseClick(Calls()->viewport(), Qt::LeftButton, keys,
                      Calls()->visualRect(index).center());
}

inline void CDoorWindow::Press(const char *button)
{
    auto *const found = Find<QAbstractButton>(button);
    QVERIFY2(found != nullptr && found->isEnabled(), button);
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(10, found->height() / 2));
}

inline QString CDoorWindow::Field(const QString &name, int column) const
{
    for (int row = 0; row < Fields()->model()->rowCount(); ++row) {
        if (Cell(Fields(), row, 0) == name)
            return Cell(Fields(), row, column);
    }
    return {};
}

inline void CDoorWindow::MakeCall(uint32_t handle)
{
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    m_dut->dlFreq(handle, 500, &command, &answer);
}

inline void CDoorWindow::MakeCalls(int count)
{
    for (int i = 0; i < count; ++i)
        MakeCall();
    QTRY_COMPARE(Rows(), count);
}
