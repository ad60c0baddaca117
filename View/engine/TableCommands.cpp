#include "View/engine/TableCommands.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeyEvent>

#include "View/editors/LateEditors.h"
#include "View/engine/TablePage.h"

namespace {

constexpr int kCtrl = Qt::ControlModifier;
constexpr int kCtrlShift = kCtrl | Qt::ShiftModifier;
constexpr int kOffsetDecimals = 5;
constexpr double kMostOffset = 1e9;
constexpr char kUndo[] = "m_actionUndo";
constexpr char kRedo[] = "m_actionRedo";

int KeyOf(const QKeyEvent *event)
{
    return event->key() | static_cast<int>(event->modifiers() & ~Qt::KeypadModifier);
}

// The page's own action for a key; null when the key is none of these.
const char *PageActionOf(const QKeyEvent *event)
{
    switch (KeyOf(event)) {
    case kCtrl | Qt::Key_Z:
        return kUndo;
    case kCtrl | Qt::Key_Y:
    case kCtrlShift | Qt::Key_Z:
        return kRedo;
    default:
        return nullptr;
    }
}

bool HasSeveralCells(const QString &text)
{
    return text.contains(QLatin1Char('\t')) || text.contains(QLatin1Char('\n')) ||
           text.contains(QLatin1Char('\r'));
}

QString Count(size_t cells)
{
    return cells == 1 ? QStringLiteral("1 cell") : QStringLiteral("%1 cells").arg(cells);
}

}  // namespace

struct CTableCommands::SCommand
{
    const char *name;  // of the action
    const char *text;
    int key;
    void (CTableCommands::*run)();
    int readKey = 0;       // of a table for reading; 0: such a table has not this command
    bool takesKey = true;  // else it is the key of somebody else

    int Key(bool isForReading) const { return isForReading ? readKey : key; }
};

const CTableCommands::SCommand CTableCommands::kCommands[] = {
    {.name = "m_actionCopyCells",
     .text = "Copy cells",
     .key = kCtrl | Qt::Key_C,
     .run = &CTableCommands::CopyCells,
     .readKey = kCtrlShift | Qt::Key_C},
    {.name = "m_actionCopyWithHeaders",
     .text = "Copy with headers",
     .key = kCtrlShift | Qt::Key_C,
     .run = &CTableCommands::CopyWithHeaders,
     .readKey = kCtrl | Qt::Key_C},
    {.name = "m_actionPasteCells",
     .text = "Paste cells",
     .key = kCtrl | Qt::Key_V,
     .run = &CTableCommands::PasteCells},
    {.name = "m_actionSetToZero",
     .text = "Set to 0",
     .key = Qt::Key_Delete,
     .run = &CTableCommands::SetToZero},
    {.name = "m_actionFillRight",
     .text = "Fill right",
     .key = kCtrl | Qt::Key_R,
     .run = &CTableCommands::FillRight},
    {.name = "m_actionAddOffset",
     .text = "Add an offset...",
     .key = kCtrlShift | Qt::Key_O,
     .run = &CTableCommands::AskOffset},
    {.name = "m_actionInterpolate",
     .text = "Interpolate",
     .key = kCtrlShift | Qt::Key_I,
     .run = &CTableCommands::Interpolate},
    {.name = "m_actionMarkAll",
     .text = "Mark all cells",
     .key = kCtrl | Qt::Key_A,
     .run = &CTableCommands::MarkAll,
     .readKey = kCtrl | Qt::Key_A,
     .takesKey = false},
};

CTableCommands::CTableCommands(QTableWidget *table, CTableKeys *keys)
    : QObject(table), m_table(table), m_mark(CTableMark::Of(table)), m_keys(keys)
{
    m_keys->SetCommands(this);
    connect(m_mark, &CTableMark::Changed, this, &CTableCommands::TellMark);
}

CTableCommands::~CTableCommands()
{
    if (m_keys)
        m_keys->SetCommands(nullptr);
}

CTableCommands *CTableCommands::Of(const QWidget *table)
{
    return table->findChild<CTableCommands *>(QString(), Qt::FindDirectChildrenOnly);
}

// The keys come by CTableKeys: a shortcut of an action would be in the way of a host's.
QList<QAction *> CTableCommands::Actions()
{
    if (!m_actions.isEmpty())
        return m_actions;
    for (const SCommand &command : kCommands) {
        const int keys = command.Key(m_keys && m_keys->IsForReading());
        if (keys == 0)
            continue;
        const QString key = QKeySequence(keys).toString(QKeySequence::NativeText);
        auto *action = new QAction(QLatin1String(command.text) + QLatin1Char('\t') + key, this);
        action->setObjectName(QLatin1String(command.name));
        connect(action, &QAction::triggered, this, [this, &command] { Run(command); });
        m_actions.append(action);
    }
    return m_actions;
}

bool CTableCommands::TakesKey(const QKeyEvent *event) const
{
    const int key = KeyOf(event);
    const bool isForReading = m_keys && m_keys->IsForReading();
    if (m_mark->IsEmpty() && isForReading)
        return m_table->hasFocus() &&
               (key == (kCtrl | Qt::Key_C) || key == (kCtrlShift | Qt::Key_C));
    if (m_mark->IsEmpty())
        return key == (kCtrl | Qt::Key_V) && !m_mark->Rows().empty() &&
               HasSeveralCells(QGuiApplication::clipboard()->text());
    if (PageActionOf(event))
        return true;
    for (const SCommand &command : kCommands) {
        if (command.takesKey && command.Key(isForReading) == key)
            return true;
    }
    return false;
}

void CTableCommands::RunKey(const QKeyEvent *event)
{
    if (const char *action = PageActionOf(event)) {
        TriggerOfPage(action);
        return;
    }
    for (const SCommand &command : kCommands) {
        if (command.Key(m_keys && m_keys->IsForReading()) == KeyOf(event))
            Run(command);
    }
}

void CTableCommands::Run(const SCommand &command)
{
    const QPointer<CTableCommands> self(this);
    if (m_keys)
        m_keys->FinishEdit();
    if (!self)
        return;
    EnsureEditors(m_table);
    (this->*command.run)();
}

void CTableCommands::TriggerOfPage(const char *action) const
{
    ITablePage *page = TablePageOf(m_table);
    auto *found = page ? page->Widget()->findChild<QAction *>(QLatin1String(action)) : nullptr;
    if (found)
        found->trigger();
}

void CTableCommands::Say(const QString &text) const
{
    if (ITablePage *page = TablePageOf(m_table))
        page->ShowStatus(text);
}

// A mark of one cell is what a click shows, too.
void CTableCommands::TellMark() const
{
    const size_t cells = m_mark->Rows().size() * m_mark->Columns().size();
    if (!m_isQuiet && !m_mark->IsEmpty() && cells > 1)
        Say(Count(cells) + QLatin1String(" marked."));
}

// Of a table for reading without a mark all of it.
void CTableCommands::Copy(bool hasCaptions)
{
    const bool isAll = m_keys && m_keys->IsForReading() && m_mark->IsEmpty();
    SMarkedCells cells = isAll ? AllCells(m_table) : MarkedCells(m_table);
    if (cells.rows.empty() || cells.columns.empty())
        return;
    const QString count = Count(cells.rows.size() * cells.columns.size());
    const auto line = [table = m_table, columns = cells.columns, hasCaptions](int row) {
        return TextsOf(table, row, columns, hasCaptions);
    };
    const QStringList header = hasCaptions ? CaptionsOf(cells) : QStringList();
    m_copy.Start({.header = header, .rows = std::move(cells.rows), .line = line}, m_table->model(),
                 [this, count](bool isDone) {
                     Say(count +
                         QLatin1String(isDone ? " copied." : " not copied: the table changed."));
                 });
    if (m_copy.IsUnderWay())
        Say(QLatin1String("Copying ") + count + QLatin1String("..."));
}

void CTableCommands::PasteCells()
{
    const SCellPlan plan =
        PlanPaste(MarkedCells(m_table), CellsOfText(QGuiApplication::clipboard()->text()));
    if (Change(QStringLiteral("Paste"), plan))
        MarkEntered(plan.entries);
}

// So that the next command is for what came in.
void CTableCommands::MarkEntered(const CellEntries &entries)
{
    if (entries.size() < 2)
        return;
    const QAbstractItemModel *model = m_table->model();
    m_isQuiet = true;
    m_mark->Clear();
    m_mark->SetCurrent(model->index(entries.front().row, entries.front().column));
    m_mark->ExtendTo(model->index(entries.back().row, entries.back().column));
    m_isQuiet = false;
}

void CTableCommands::SetToZero()
{
    Change(QStringLiteral("Set to 0"), PlanZero(MarkedCells(m_table)));
}

void CTableCommands::FillRight()
{
    Change(QStringLiteral("Fill right"), PlanFillRight(MarkedCells(m_table)));
}

// It goes with the table.
void CTableCommands::AskOffset()
{
    auto *dialog = new QInputDialog(m_table);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setLocale(QLocale::c());
    dialog->setObjectName(QStringLiteral("m_offsetDialog"));
    dialog->setWindowTitle(QStringLiteral("Add an offset"));
    dialog->setLabelText(QStringLiteral("Offset of the marked cells:"));
    dialog->setInputMode(QInputDialog::DoubleInput);
    dialog->setDoubleDecimals(kOffsetDecimals);
    dialog->setDoubleRange(-kMostOffset, kMostOffset);
    dialog->setDoubleValue(0.0);
    connect(dialog, &QInputDialog::doubleValueSelected, this, [this](double offset) {
        Change(QStringLiteral("Add an offset"), PlanOffset(MarkedCells(m_table), offset));
    });
    dialog->open();
}

void CTableCommands::Interpolate()
{
    Change(QStringLiteral("Interpolate"), PlanInterpolate(MarkedCells(m_table)));
}

void CTableCommands::MarkAll()
{
    m_mark->MarkAll();
}

bool CTableCommands::Change(const QString &name, const SCellPlan &plan)
{
    ITablePage *page = TablePageOf(m_table);
    if (!page)
        return false;
    const SCheckedEntries checked = CheckEntries(m_table, plan.entries);
    const QString remark = plan.remark.isEmpty() ? checked.refusal : plan.remark;
    if (!remark.isEmpty()) {
        page->ShowRefusal(name, remark);
        return false;
    }
    const QPointer<CTableCommands> self(this);
    if (!checked.changes.empty())
        page->ChangeCells(name, checked.changes);
    if (self)
        Say(name + QLatin1String(": ") + Count(checked.changes.size()) +
            QLatin1String(" changed."));
    return self;
}
