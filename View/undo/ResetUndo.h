// The button "Undo" of a reset, in the status bar of the window that the page is docked in.
//
// It is there as soon as a reset is done; its tool tip names the last one. Pressing it takes that
// reset back, but for the cells that were edited since; typing the same value is an edit, too. Several
// resets are taken back one by one. Resets that are undone otherwise leave the list. The list ends when
// the page begins a flow, or is left. A page without a window has no button. GUI thread.
//
//   CResetUndo m_resets{page};
//   connect(&m_resets, &CResetUndo::Wanted, ...);
//   m_resets.Add({.command = command, .name = "Reset PD", .selection = ..., .edits = ...});
#pragma once

#include <vector>

#include <QDockWidget>
#include <QPointer>
#include <QStringList>
#include <QUndoStack>

#include "View/undo/CellEdit.h"

class QPushButton;

struct SReset
{
    const QUndoCommand *command = nullptr;  // on the page's stack, or gone
    QString name = {};
    QStringList selection = {};
    CellEdits edits = {};  // but for cells that were edited since
};

class CResetUndo : public QObject
{
    Q_OBJECT

public:
    // page must outlive this object.
    explicit CResetUndo(QDockWidget *page);
    ~CResetUndo() override;

    void Add(SReset reset);
    // The user has edited a cell.
    void Touch(const QStringList &selection, const SEditorPlace &place);
    // Keeps those that are done on the stack.
    void KeepThoseOn(const QUndoStack &stack);
    void Forget();
    bool IsEmpty() const { return m_resets.empty(); }
    SReset TakeLast();

signals:
    void Wanted();

private:
    void ShowButton();
    void RemoveButton();

    QDockWidget *const m_page;
    std::vector<SReset> m_resets;  // the last one last
    QPointer<QPushButton> m_button;
};
