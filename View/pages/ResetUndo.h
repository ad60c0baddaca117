// What a reset button does to tables, and its way back.
//
// Zero() sets all editors of decimal numbers in the tables to 0 and puts a button "Undo" into the
// status bar of the window that the page is docked in; its tool tip names the reset. Undo gives the
// cells their values back, but for those that were edited since; typing the same value is an edit,
// too. Several resets are undone one by one, the last one first. A reset that changed nothing has no
// undo.
//
// Forget() takes the button away, for when the page shows other data or begins a flow. It also goes
// when the page is hidden, as by a change of tabs. A page without a window has no button. GUI
// thread; the tables' cells may go before this object does.
//
//   CResetUndo m_undo{this, [this] { FinishEdit(); }};
//   m_undo.Zero("Reset PD", {m_ui->...powerDetector});
//   m_undo.Forget();
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QDockWidget>
#include <QList>
#include <QPointer>
#include <QTableWidget>

class QPushButton;

class CResetUndo : public QObject
{
    Q_OBJECT

public:
    // page must outlive this object; finishEdit ends an edit under way on it.
    CResetUndo(QDockWidget *page, std::function<void()> finishEdit);
    ~CResetUndo() override;

    void Zero(const QString &reset, const QList<QTableWidget *> &tables);
    void Forget();

private:
    struct SReset;

    void Undo();
    void ShowButton();
    void RemoveButton();

    QDockWidget *const m_page;
    const std::function<void()> m_finishEdit;
    std::vector<std::unique_ptr<SReset>> m_resets;  // the last one last
    QPointer<QPushButton> m_button;
};
