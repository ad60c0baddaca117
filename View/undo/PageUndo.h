// Undo of a calibration page: one stack of commands, its actions, and what differs from what was last
// read or imported.
//
// Commands are each ended edit, the choices in a list while it keeps the focus, each change of many
// cells (paste, fill, reset), Revert record, Revert all, Copy record, and what a Read or Import
// replaced. A command remembers the selection that it was made under, and undo and redo show that
// first. Selectors are no edits. The stack holds the last 500 commands. A Read or Import that changes
// something ends the undo of the one before it, and of what came before that.
//
// The actions stand in the page's actions(), with their shortcuts, which work while the page has the
// focus. Each is on only while it can do something, and none while a request runs.
//
// What differs is shown behind each step by an event of its own: the looks of editors (ChangedCells.h)
// and the count in the status bar (ChangeCount.h).
//
// Errors. A step whose selection the page no longer has does nothing. A host may take the page away in
// the midst of a step; nothing touches the page after that. GUI thread.
//
//   m_undo = std::make_unique<CPageUndo>(editedPage, this, Edits());
//   m_undo->Start(dataMembers);               // behind Init
//   m_undo->ChangeCells("Fill right", changes);
//   m_undo->BeginFlow(); ... m_undo->ShownAnew(); m_undo->EndFlow("Read");
#pragma once

#include <memory>

#include <QAction>
#include <QTimer>
#include <QUndoStack>

#include "View/engine/CellChange.h"
#include "View/undo/CellWriter.h"
#include "View/undo/ChangeCount.h"
#include "View/undo/ChangedCells.h"
#include "View/undo/EditRecorder.h"
#include "View/undo/ResetUndo.h"

class CPageUndo : public QObject
{
    Q_OBJECT

public:
    // page and widget are the same; they outlive this object.
    CPageUndo(IEditedPage &page, QDockWidget *widget, const CEditSession &edits);
    ~CPageUndo() override;

    // members: the editors and tables of the data section.
    void Start(const QList<QWidget *> &members);
    // Off while a request runs.
    void SetEnabled(bool isEnabled);
    void ChangeCells(const QString &name, const CellChanges &changes);
    // The same for a reset, which has a button in the status bar, too.
    void Reset(const QString &name, const CellChanges &changes);
    void BeginFlow();
    // name: of a flow that fills records.
    void EndFlow(const QString &name);
    // The page shows a document of memory.
    void ShownAnew();

private:
    QAction *AddAction(const char *name, const char *text, const char *keys,
                       void (CPageUndo::*slot)());
    bool EndEdit();
    void Undo();
    void Redo();
    void Step(const char *name, void (QUndoStack::*step)());
    void RevertRecord();
    void RevertAll();
    void CopyRecord();
    void UndoReset();
    void Record(const SCellEdit &edit, int visit);
    const QUndoCommand *PushCells(const QString &name, const CellEdits &edits);
    CellEdits EditsOf(const CellChanges &changes) const;
    void PushRecords(const QString &name, const CalChange &change);
    void MarkDirty(const CellEdits &edits);
    void Refresh();
    void ShowCells(const SCalChangedCells &cells);
    void RefreshActions();

    IEditedPage &m_page;
    QDockWidget *const m_widget;
    // Goes on until the end of a step in which the page goes.
    const std::shared_ptr<QUndoStack> m_stack = std::make_shared<QUndoStack>();
    CCellWriter m_writer;
    CEditRecorder m_recorder;
    CResetUndo m_resets;
    CChangedCells m_changed;
    CChangeCount m_count;
    QTimer m_refresh;
    std::vector<SEditorPlace> m_dirty;  // edited since the last refresh
    SCalChangedCells m_cells;
    CalCopyTargets m_targets;
    bool m_isOn = true;
    bool m_isRefreshDue = false;  // as soon as it is on again
    bool m_hasStarted = false;
    bool m_hasFlow = false;  // on the stack
    QAction *m_actionUndo = nullptr;
    QAction *m_actionRedo = nullptr;
    QAction *m_actionRevertRecord = nullptr;
    QAction *m_actionRevertAll = nullptr;
    QAction *m_actionCopyRecord = nullptr;
};
