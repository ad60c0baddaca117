#include "Runner/bench/BenchPage.h"

#include <QAbstractButton>
#include <QTabWidget>
#include <QTableWidget>

#include "Runner/bench/Editors.h"
#include "Runner/bench/Names.h"
#include "Runner/bench/PageLayout.h"
#include "Runner/bench/PageReader.h"
#include "Runner/bench/Units.h"

namespace {

const QString kListComma = QStringLiteral(", ");

bool IsInput(const SLayoutMember &member)
{
    return member.kind != EGroupKind::Results && member.known.IsInput();
}

// "Fetch PD ( dBm)" is "Fetch PD".
QString WithoutUnit(const QString &text)
{
    return UnitOf(text).isEmpty() ? text : text.section('(', 0, -2).trimmed();
}

}  // namespace

CBenchPage::CBenchPage(CBenchTool &bench, QDockWidget *page) : m_bench(bench), m_page(page) {}

CBenchPage::~CBenchPage() = default;

QString CBenchPage::Title() const
{
    return m_page ? m_page->windowTitle().trimmed() : QString();
}

QString CBenchPage::ClassName() const
{
    return m_page ? QString::fromLatin1(m_page->metaObject()->className()) : QString();
}

bool CBenchPage::IsInFront() const
{
    return m_page && m_page->isEnabled() && !m_page->visibleRegion().isEmpty();
}

QString CBenchPage::DocumentText() const
{
    return m_page ? DocumentTextOf(m_page) : QString();
}

const CPageLayout &CBenchPage::Layout() const
{
    if (!m_layout)
        m_layout = std::make_unique<CPageLayout>(m_page, DocumentText());
    return *m_layout;
}

QVector<SBenchButton> CBenchPage::Buttons() const
{
    QVector<SBenchButton> buttons;
    if (!m_page)
        return buttons;
    for (const QAbstractButton *button : ButtonsOf(m_page))
        buttons.append(ReadButton(m_page, button));
    return buttons;
}

QVector<SBenchMember> CBenchPage::Members() const
{
    if (!m_page)
        return {};
    return CPageReader(m_page, Layout()).Members(DocumentText());
}

QVector<SBenchTable> CBenchPage::Tables() const
{
    if (!m_page)
        return {};
    return CPageReader(m_page, Layout()).Tables(DocumentText());
}

int CBenchPage::Rows() const
{
    if (!m_page)
        return 0;
    for (const SLayoutTable &table : Layout().Tables()) {
        if (table.kind == EGroupKind::Results && table.widget && IsShownOn(m_page, table.widget))
            return table.widget->rowCount();
    }
    return 0;
}

QAbstractButton *CBenchPage::ButtonOf(const QString &name, SRefusal &refusal) const
{
    QAbstractButton *found = nullptr;
    QStringList texts;
    int count = 0;
    for (QAbstractButton *button : m_page ? ButtonsOf(m_page) : QVector<QAbstractButton *>()) {
        const SBenchButton read = ReadButton(m_page, button);
        if (read.name == name.trimmed())
            return button;
        if (read.text == name.trimmed() || WithoutUnit(read.text) == name.trimmed()) {
            found = button;
            ++count;
        }
        texts.append(QStringLiteral("%1 (%2)").arg(read.text, read.name));
    }
    if (count == 1)
        return found;
    refusal = {count == 0
                   ? QStringLiteral("There is no button \"%1\" on %2.").arg(name, Title())
                   : QStringLiteral("\"%1\" is more than one button on %2.").arg(name, Title()),
               texts.join(kListComma)};
    return nullptr;
}

std::optional<SRefusal> CBenchPage::FindButton(const QString &name, SBenchButton &button) const
{
    SRefusal refusal;
    const QAbstractButton *found = ButtonOf(name, refusal);
    if (!found)
        return refusal;
    button = ReadButton(m_page, found);
    return std::nullopt;
}

const SLayoutMember *CBenchPage::InputOf(const QString &name, int &column, SRefusal &refusal) const
{
    const SParsedName parsed = ParseName(name);
    QStringList candidates;
    QVector<const SLayoutMember *> members;
    for (const SLayoutMember &member : Layout().Members()) {
        if (IsInput(member)) {
            candidates.append(member.known.Name());
            members.append(&member);
        }
    }
    const SNameMatch match = MatchName(parsed.name, candidates, QStringLiteral("editor"));
    refusal = match.refusal;
    if (match.index < 0)
        return nullptr;
    const SLayoutMember *member = members[match.index];
    column = parsed.column;
    const auto *table = qobject_cast<QTableWidget *>(member->widget);
    const int columns = member->kind == EGroupKind::Cells && table ? table->columnCount() : 0;
    if (columns == 0 && column < 0)
        return member;
    if (columns > 0 && column >= 0 && column < columns)
        return member;
    refusal = columns == 0
                  ? SRefusal{QStringLiteral("%1 is one value, not a row of cells.")
                                 .arg(member->known.Name())}
                  : SRefusal{QStringLiteral("%1 is a row of cells and needs a column in brackets.")
                                 .arg(member->known.Name()),
                             QStringLiteral("[0] to [%1]").arg(columns - 1)};
    return nullptr;
}

std::optional<SRefusal> CBenchPage::FindInput(const QString &name, SBenchMember &member,
                                              int &column) const
{
    SRefusal refusal;
    if (!m_page)
        return SRefusal{QStringLiteral("The page has gone.")};
    const SLayoutMember *found = InputOf(name, column, refusal);
    if (!found)
        return refusal;
    for (const SBenchMember &read : Members()) {
        if (read.Name() == found->known.Name())
            member = read;
    }
    return std::nullopt;
}

// A click on the tab. The tabs of the page itself, where the widget stands on one, come next.
void CBenchPage::ShowTab(const QWidget *widget)
{
    for (const QWidget *at = widget; at && at != m_page; at = at->parentWidget()) {
        for (QTabWidget *tabs : m_page->findChildren<QTabWidget *>()) {
            const int index = tabs->indexOf(const_cast<QWidget *>(at));
            if (index >= 0 && tabs->currentIndex() != index)
                tabs->setCurrentIndex(index);
        }
    }
}

std::optional<SRefusal> CBenchPage::Raise()
{
    if (!m_page)
        return SRefusal{QStringLiteral("The page has gone.")};
    const QString title = Title();
    if (!IsInFront())
        m_page->raise();
    const EBenchWait end =
        m_bench.WaitUntil([this] { return IsInFront() && !m_bench.IsBusy(); }, kBenchWait);
    if (end == EBenchWait::Done)
        return std::nullopt;
    return SRefusal{end == EBenchWait::Interrupted
                        ? QStringLiteral("Interrupted.")
                        : QStringLiteral("The page %1 does not come to the front.").arg(title)};
}

std::optional<SRefusal> CBenchPage::RefuseOff(const SBenchMember &member,
                                              const QWidget *editor) const
{
    if (!editor)
        return SRefusal{QStringLiteral("%1 has no editor.").arg(member.Name())};
    if (!member.isShown)
        return SRefusal{QStringLiteral("%1 is hidden now.").arg(member.Name())};
    if (!IsOnAt(m_page, editor))
        return SRefusal{QStringLiteral("%1 is disabled now.").arg(member.Name())};
    return std::nullopt;
}

std::optional<SRefusal> CBenchPage::Set(const QString &name, const QString &value)
{
    if (const auto refusal = Raise())
        return refusal;
    SRefusal refusal;
    int column = -1;
    const SLayoutMember *found = InputOf(name, column, refusal);
    if (!found)
        return refusal;
    if (found->widget)
        ShowTab(found->widget);
    SBenchMember member = CPageReader(m_page, Layout()).Member(*found);
    auto *table = qobject_cast<QTableWidget *>(found->widget);
    QWidget *editor =
        column >= 0 && table ? CellEditor(table, found->row, column) : found->widget.data();
    if (const auto off = RefuseOff(member, editor))
        return off;
    ReadEditor(editor, member);
    const auto typed = TypeInto(editor, member, value);
    // A selector shows the data of what was chosen, which may take a request.
    m_bench.WaitIdle(kBenchWait);
    return typed;
}
