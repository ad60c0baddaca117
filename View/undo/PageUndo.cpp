#include "View/undo/PageUndo.h"

#include <utility>

#include <QDockWidget>
#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/editors/ExactClass.h"
#include "View/editors/NamedAction.h"
#include "View/engine/CellText.h"
#include "View/engine/ChangeRecorder.h"
#include "View/undo/CellsCommand.h"
#include "View/undo/CopyRecordDialog.h"
#include "View/undo/RecordsCommand.h"

namespace {

constexpr int kMostCommands = 500;

QString WithKeys(const QString &text, const QAction *action)
{
    return text + QLatin1Char('\t') + action->shortcut().toString(QKeySequence::NativeText);
}

}  // namespace

CPageUndo::CPageUndo(IEditedPage &page, QDockWidget *widget, const CEditSession &edits)
    : m_page(page), m_widget(widget),
      m_writer(page, [this](const CellEdits &written) { MarkDirty(written); }),
      m_recorder(
          edits,
          {.isQuiet = [this] { return m_writer.IsWriting() || !m_page.IsReady(); },
           .touched =
               [this](const SEditorPlace &place) { m_resets.Touch(m_page.Selection(), place); },
           .edited = [this](const SCellEdit &edit, int visit) { Record(edit, visit); }}),
      m_resets(widget), m_changed(page), m_count(widget)
{
    m_stack->setUndoLimit(kMostCommands);
    m_actionUndo = AddAction("m_actionUndo", "Undo", "Ctrl+Z", &CPageUndo::Undo);
    m_actionRedo = AddAction("m_actionRedo", "Redo", "Ctrl+Y", &CPageUndo::Redo);
    m_actionRevertRecord =
        AddAction("m_actionRevertRecord", "Revert record", "Ctrl+Alt+R", &CPageUndo::RevertRecord);
    m_actionRevertAll =
        AddAction("m_actionRevertAll", "Revert all", "Ctrl+Alt+Shift+R", &CPageUndo::RevertAll);
    m_actionCopyRecord =
        AddAction("m_actionCopyRecord", "Copy record to...", "Ctrl+Alt+C", &CPageUndo::CopyRecord);
    connect(m_stack.get(), &QUndoStack::indexChanged, this, [this] {
        m_resets.KeepThoseOn(*m_stack);
        RefreshActions();
        m_refresh.start();
    });
    connect(&m_resets, &CResetUndo::Wanted, this, &CPageUndo::UndoReset);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &CPageUndo::Refresh);
    RefreshActions();
}

// The stack may go on for the rest of a step, without the page.
CPageUndo::~CPageUndo()
{
    m_stack->disconnect(this);
}

QAction *CPageUndo::AddAction(const char *name, const char *text, const char *keys,
                              void (CPageUndo::*slot)())
{
    QAction *const action =
        ::AddAction(m_widget, name, text, {QLatin1String(keys)}, [this, slot] { (this->*slot)(); });
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setText(WithKeys(action->text(), action));
    return action;
}

void CPageUndo::Start(const QList<QWidget *> &members)
{
    m_changed.Watch(members);
    for (QWidget *member : members) {
        if (auto *list = ExactCast<QComboBox>(member))
            m_recorder.Watch(list);
    }
    m_hasStarted = true;
    m_refresh.start();
}

void CPageUndo::SetEnabled(bool isEnabled)
{
    m_isOn = isEnabled;
    RefreshActions();
    if (m_isOn && m_isRefreshDue)
        m_refresh.start();
}

// False when the page is gone: the check of a number may open a box.
bool CPageUndo::EndEdit()
{
    const QPointer<QWidget> alive(m_widget);
    m_page.EndEdit();
    if (alive)
        m_recorder.Settle();
    return alive;
}

void CPageUndo::Undo()
{
    Step("Undo", &QUndoStack::undo);
}

void CPageUndo::Redo()
{
    Step("Redo", &QUndoStack::redo);
}

void CPageUndo::Step(const char *name, void (QUndoStack::*step)())
{
    const std::shared_ptr<QUndoStack> stack = m_stack;
    if (!EndEdit())
        return;
    const CChangeScope scope(&m_page.Recorder(), {.key = QLatin1String(name)});
    (stack.get()->*step)();
}

void CPageUndo::Record(const SCellEdit &edit, int visit)
{
    if (!edit.place.member || !IsResultName(edit.place.member->objectName()))
        return;
    m_stack->push(new CCellsCommand(m_writer, EditNameOf(edit.place, m_page.Document()), {edit},
                                    CCellsCommand::EDone::Yes, visit));
    MarkDirty({edit});
}

void CPageUndo::ChangeCells(const QString &name, const CellChanges &changes)
{
    if (EndEdit())
        PushCells(name, EditsOf(changes));
}

void CPageUndo::Reset(const QString &name, const CellChanges &changes)
{
    if (!EndEdit())
        return;
    const CellEdits edits = EditsOf(changes);
    const QStringList selection = m_page.Selection();
    if (const QUndoCommand *command = PushCells(name, edits))
        m_resets.Add({.command = command, .name = name, .selection = selection, .edits = edits});
}

CellEdits CPageUndo::EditsOf(const CellChanges &changes) const
{
    CellEdits edits;
    for (const SCellChange &change : changes) {
        const SEditorPlace place = {
            .member = change.table, .row = change.row, .column = change.column};
        const QWidget *editor = EditorAt(place);
        const QString text = editor ? CellText(editor) : change.text;
        if (text != change.text)
            edits.push_back({.place = place, .from = text, .to = change.text});
    }
    return edits;
}

// Null when there is nothing to do.
const QUndoCommand *CPageUndo::PushCells(const QString &name, const CellEdits &edits)
{
    if (edits.empty())
        return nullptr;
    const QStringList selection = m_page.Selection();
    for (const SCellEdit &edit : edits)
        m_resets.Touch(selection, edit.place);
    auto *command = new CCellsCommand(m_writer, name, edits, CCellsCommand::EDone::No);
    const CChangeScope scope(&m_page.Recorder(), {.key = name});
    m_stack->push(command);
    return command;
}

// When the last step was the reset, that is undone; else its cells get what they were by a step of
// their own.
void CPageUndo::UndoReset()
{
    const std::shared_ptr<QUndoStack> stack = m_stack;
    if (!EndEdit() || m_resets.IsEmpty())
        return;
    const SReset last = m_resets.TakeLast();
    if (stack->index() > 0 && stack->command(stack->index() - 1) == last.command) {
        stack->undo();
        return;
    }
    if (m_page.Selection() != last.selection && !m_page.ShowSelection(last.selection))
        return;
    CellEdits edits;
    for (const SCellEdit &edit : last.edits)
        edits.push_back({.place = edit.place, .from = edit.to, .to = edit.from});
    PushCells(QLatin1String("Undo ") + last.name, edits);
}

void CPageUndo::RevertRecord()
{
    if (EndEdit())
        PushRecords(QStringLiteral("Revert record"),
                    m_page.Ctrl().RevertCalRecord(m_page.Item(), m_page.Packaged()));
}

void CPageUndo::RevertAll()
{
    if (EndEdit())
        PushRecords(QStringLiteral("Revert all"),
                    m_page.Ctrl().RevertCalItem(m_page.Item(), m_page.Packaged()));
}

void CPageUndo::CopyRecord()
{
    if (!EndEdit())
        return;
    const QPointer<QWidget> alive(m_widget);
    const QPointer<CCopyRecordDialog> dialog(new CCopyRecordDialog(m_targets, m_widget));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const CalCopyTargets chosen = dialog && isAccepted ? dialog->Chosen() : CalCopyTargets();
    delete dialog;
    if (alive && !chosen.isEmpty())
        PushRecords(QStringLiteral("Copy record"),
                    m_page.Ctrl().CopyCalRecord(m_page.Item(), m_page.Packaged(), chosen));
}

void CPageUndo::PushRecords(const QString &name, const CalChange &change)
{
    if (!change)
        return;
    m_stack->push(new CRecordsCommand(m_page, name, change));
    m_page.ShowMemory();
}

void CPageUndo::BeginFlow()
{
    m_resets.Forget();
}

void CPageUndo::EndFlow(const QString &name)
{
    const CalChange change = m_page.Ctrl().TakeFlowChange(m_page.Item());
    if (!change)
        return;
    if (std::exchange(m_hasFlow, true))
        m_stack->clear();
    m_stack->push(new CRecordsCommand(m_page, name, change));
}

void CPageUndo::ShownAnew()
{
    m_dirty.clear();
    m_refresh.stop();
    m_isRefreshDue = false;
    const SCalChangedCells cells =
        m_page.Ctrl().CountCalChanges(m_page.Item(), m_page.Document(), false);
    m_changed.ShownAnew(cells.inRecord > 0);
    m_targets = m_page.Ctrl().FindCopyTargets(m_page.Item(), m_page.Document());
    ShowCells(cells);
}

void CPageUndo::MarkDirty(const CellEdits &edits)
{
    for (const SCellEdit &edit : edits)
        m_dirty.push_back(edit.place);
    m_refresh.start();
}

// While a flow of the item runs, its records are not to be had.
void CPageUndo::Refresh()
{
    m_isRefreshDue = !m_isOn;
    if (m_isRefreshDue)
        return;
    const std::vector<SEditorPlace> dirty = std::exchange(m_dirty, {});
    // A page that has left its window is of a DUT that is gone.
    if (!m_hasStarted || !m_page.IsReady() || !m_widget->parentWidget())
        return;
    const QJsonObject document = m_page.PackagedCopy();
    const SCalChangedCells cells = m_page.Ctrl().CountCalChanges(m_page.Item(), document, true);
    m_changed.Edited(dirty, cells.inRecord > 0);
    m_targets = m_page.Ctrl().FindCopyTargets(m_page.Item(), document);
    ShowCells(cells);
}

void CPageUndo::ShowCells(const SCalChangedCells &cells)
{
    m_cells = cells;
    m_count.Show(cells.inAll);
    RefreshActions();
}

void CPageUndo::RefreshActions()
{
    const auto named = [](const char *word, const QString &what) {
        return what.isEmpty() ? QString::fromLatin1(word)
                              : QLatin1String(word) + QLatin1Char(' ') + what;
    };
    m_actionUndo->setText(WithKeys(named("Undo", m_stack->undoText()), m_actionUndo));
    m_actionRedo->setText(WithKeys(named("Redo", m_stack->redoText()), m_actionRedo));
    m_actionUndo->setEnabled(m_isOn && m_stack->canUndo());
    m_actionRedo->setEnabled(m_isOn && m_stack->canRedo());
    m_actionRevertRecord->setEnabled(m_isOn && m_cells.inRecord > 0);
    m_actionRevertAll->setEnabled(m_isOn && m_cells.inAll > 0);
    m_actionCopyRecord->setEnabled(m_isOn && !m_targets.isEmpty());
}
