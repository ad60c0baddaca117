// What a reset button does to tables, and its way back.
//
// Zero() sets all editors of decimal numbers in the tables to 0 and leaves a button "Undo" in the
// status bar of the window that the page is docked in. Undo gives each cell that was zeroed and has
// not been edited since its value of before; its tool tip names the reset. Resets in a row are
// undone one by one, the last one first, and one that changed nothing has no undo. Typing in a cell
// edits it, also when its value comes out the same.
//
// Forget() takes the button away: the page shows other data, or begins a flow. So does the page
// when it is hidden, as by a change of tabs. A page without a window has no button. GUI thread; the
// tables' cells may go before this object does.
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
