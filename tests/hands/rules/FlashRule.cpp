#include "tests/hands/rules/FlashRule.h"

#include "Simulator/VondSim.h"
#include "Trace/dictionary/FieldPath.h"
#include "tests/hands/witness/PageReader.h"

namespace {

constexpr char kWritten[] = "Write data to target successfully.";
constexpr char kVerified[] = "Guarded write done and verified.";
constexpr const char *kCalPages[] = {"CNrRxPathlossDockWidgetV7", "CNrAptProfileDockWidgetV7"};

bool IsOfPage(const QString &page, const FlashPlace &place)
{
    return (page == kCalPages[1]) == (std::get<0>(place) == eFlashApt);
}

// A file's frequencies that fill their blocks exactly stand for one block more, unless the record
// has been read.
bool IsGrownByImport(const CFlashFile::SRecord &record, int blocks)
{
    const QByteArray &block = record.blocks.last();
    const std::string last = "freq[" + std::to_string(kVondCalBlockSubbands - 1) + ']';
    const auto frequency = NumberAt(
        BlockLayout(record.place.kind),
        {reinterpret_cast<const uint8_t *>(block.constData()), size_t(block.size())}, last);
    return blocks == record.blocks.size() + 1 && frequency != 0;
}

std::tuple<uint32_t, uint32_t, uint32_t> RecordOf(const FlashPlace &place)
{
    return {std::get<0>(place), std::get<1>(place), std::get<2>(place)};
}

// The DUT may have left out a field of what it says it has written.
bool IsAnyFieldStuck()
{
    SVondSimFault fault;
    for (uint32_t i = 0; VondSim_GetFault(i, &fault) == 0; ++i) {
        if (qstrcmp(fault.kind, "stuck") == 0)
            return true;
    }
    return false;
}

}  // namespace

CFlashRule::CFlashRule(CDesk &desk, const CDutCommands &commands, const QString &flashFile)
    : m_desk(desk), m_commands(commands), m_file(flashFile), m_flash(flashFile),
      m_next(VondSim_CallCount())
{
    for (const char *page : kCalPages)
        m_pages[page] = {};
}

void CFlashRule::Before(SDeed::EKind)
{
    m_edit.Before();
}

// The edit under way has ended by now, and the page still shows the old selection's data.
void CFlashRule::OnBusy(QDockWidget *page, bool isBusy)
{
    if (!isBusy)
        return;
    if (m_edit.Editor() && page->isAncestorOf(m_edit.Editor()) && m_failure.isEmpty())
        m_failure = m_edit.End();
    const auto state = m_pages.find(page->objectName());
    if (state == m_pages.end() || state->wasBusy)
        return;
    FindEdits(*state, CellsOf(page, m_commands.Document(page->objectName())));
    state->wasBusy = true;
}

void CFlashRule::OnStatus(QDockWidget *page, const QString &text)
{
    const bool isEnd =
        text.endsWith("successfully.") || text.endsWith("failed.") || text == kVerified;
    if (isEnd && m_pages.contains(page->objectName()))
        m_pages[page->objectName()].ends.append(text);
}

QString CFlashRule::After(const SDeed &deed)
{
    const QString edit = m_edit.After(deed.kind == SDeed::Keys);
    QString failure = m_failure.isEmpty() ? edit : m_failure;
    m_failure.clear();
    if (!m_desk.IsQuiet())
        return failure;
    const QString flash = CheckFlash();
    if (failure.isEmpty())
        failure = flash;
    for (auto state = m_pages.begin(); state != m_pages.end(); ++state) {
        if (m_resets != m_desk.resets) {
            const SExport file = state->file;  // it outlives the page
            *state = {};
            state->file = file;
        }
        for (const QString &line : qAsConst(state->ends))
            EndFlow(state.key(), *state, line);
        state->ends.clear();
        const QDockWidget *page = m_desk.Page(state.key());
        if (!page || (m_edit.Editor() && page->isAncestorOf(m_edit.Editor())))
            continue;
        // Out of sight nobody edits.
        if (!state->wasBusy && !state->selection.isEmpty() && page->visibleRegion().isEmpty())
            continue;
        LookAt(*state, page);
        const QString shown = CheckShown(*state);
        if (failure.isEmpty() && !shown.isEmpty())
            failure = page->windowTitle() + ": " + shown;
    }
    m_resets = m_desk.resets;
    return failure;
}

void CFlashRule::LookAt(SPageState &state, const QDockWidget *page)
{
    const Cells cells = CellsOf(page, m_commands.Document(page->objectName()));
    if (!state.wasBusy)
        FindEdits(state, cells);
    state.wasBusy = false;
    state.selection = SelectionOf(page);
    state.cells = cells;
}

void CFlashRule::FindEdits(SPageState &state, const Cells &cells)
{
    if (state.cells == cells)
        return;
    for (auto cell = state.cells.begin(); cell != state.cells.end(); ++cell) {
        if (cells[cell.key()] == cell.value())
            continue;
        ++m_editCount;
        for (const auto &[place, value] :
             BytesOf(state.selection, cell.key(), cells[cell.key()], m_flash)) {
            state.memory.possible[place].insert(value);
            if (state.memory.isRead)
                state.memory.certain[place] = value;
            if (cell.key().member.contains("freq", Qt::CaseInsensitive))
                state.memory.resized.insert(RecordOf(place));
        }
    }
}

QString CFlashRule::CheckFlash()
{
    SVondSimCall call;
    bool isWritten = false;
    for (; VondSim_GetCall(m_next, &call) == 0; ++m_next)
        isWritten = isWritten || qstrcmp(call.function, "VOND_MMRf_SetCalDataV7_r") == 0;
    if (!isWritten)
        return {};
    ++m_writeCount;
    const CFlashFile now(m_file);
    const QString failure = CheckChanges(now);
    m_flash = now;
    return failure.isEmpty() ? CheckWritten() : failure;
}

QString CFlashRule::CheckChanges(const CFlashFile &now) const
{
    if (now.records.size() != m_flash.records.size())
        return "the flash has other records";
    for (int r = 0; r < now.records.size(); ++r) {
        const int blocks = now.records[r].blocks.size();
        const bool isApt = now.records[r].place.kind == eFlashApt;
        const SMemory &memory = m_pages[kCalPages[isApt]].memory;
        const SFlashPlace &place = now.records[r].place;
        const bool mayGrow = memory.resized.count({place.kind, place.route, place.bandwidth}) > 0 ||
                             (memory.mayGrow && IsGrownByImport(m_flash.records[r], blocks));
        if (blocks != m_flash.records[r].blocks.size() && !mayGrow)
            return QString("route %1 has %2 blocks instead of %3")
                .arg(now.records[r].place.route)
                .arg(blocks)
                .arg(m_flash.records[r].blocks.size());
    }
    for (const auto &[place, value] : Differences(m_flash, now)) {
        const SMemory &memory = m_pages[kCalPages[std::get<0>(place) == eFlashApt]].memory;
        const auto found = memory.possible.find(place);
        if (found == memory.possible.end() || found->second.count(value) == 0)
            return QString("%1 became %2 instead of %3, which nobody has entered")
                .arg(PlaceText(place))
                .arg(value)
                .arg(ByteAt(m_flash, place));
    }
    return {};
}

// Behind a good Write all edits are in the flash.
QString CFlashRule::CheckWritten() const
{
    for (const SPageState &state : m_pages) {
        if (state.ends.isEmpty())
            continue;
        // A field that is stuck goes unseen but for who reads it back.
        const bool isWritten = state.ends.last() == kWritten && !IsAnyFieldStuck();
        if (!isWritten && state.ends.last() != kVerified)
            continue;
        for (const auto &[place, value] : state.memory.certain) {
            if (!state.memory.resized.count(RecordOf(place)) && ByteAt(m_flash, place) != value)
                return QString("%1 is %2 after Write, not %3 as edited")
                    .arg(PlaceText(place))
                    .arg(ByteAt(m_flash, place))
                    .arg(value);
        }
    }
    return {};
}

void CFlashRule::EndFlow(const QString &className, SPageState &state, const QString &line)
{
    const bool isGood = line.endsWith("successfully.");
    SMemory &memory = state.memory;
    if (line.startsWith("Import"))
        return Import(className, state, isGood);
    if (line.startsWith("Export") && isGood)
        state.file = {memory, m_flash};
    if (line.startsWith("Read") && isGood) {
        memory = {};
        memory.isRead = true;
    } else if (line.startsWith("Read")) {
        memory.certain.clear();
        memory.isRead = false;
    }
    if (line == kWritten && IsAnyFieldStuck()) {
        memory.certain.clear();
        memory.isRead = false;
    } else if ((line == kWritten || line == kVerified) && memory.isRead) {
        memory.possible.clear();
        memory.certain.clear();
        // Behind another number of blocks the rest is known by the next Read.
        memory.isRead = memory.resized.empty();
    }
}

// What the file has takes the place of all records, or of some.
void CFlashRule::Import(const QString &className, SPageState &state, bool isGood)
{
    SMemory &memory = state.memory;
    const SExport &file = state.file;
    memory.certain.clear();
    memory.mayGrow = memory.mayGrow || !memory.isRead;
    memory.isRead = isGood && file.memory.isRead;
    if (memory.isRead)
        memory.possible.clear();
    for (const auto &[place, values] : file.memory.possible)
        memory.possible[place].insert(values.begin(), values.end());
    for (const auto &[place, value] : Differences(m_flash, file.flash)) {
        if (!IsOfPage(className, place))
            continue;
        memory.possible[place].insert(value);
        if (memory.isRead)
            memory.certain[place] = value;
    }
    if (!memory.isRead)
        return;
    for (const auto &[place, value] : file.memory.certain)
        memory.certain[place] = value;
}

QString CFlashRule::CheckShown(const SPageState &state) const
{
    if (!state.memory.isRead)
        return {};
    bool isUlEnd = false;  // the page shows UL frequencies up to the first 0
    for (auto cell = state.cells.begin(); cell != state.cells.end(); ++cell) {
        isUlEnd = cell.key().member == "ulFreq" && (isUlEnd || cell.value() == "0");
        if (isUlEnd)
            continue;
        for (const auto &[place, value] :
             BytesOf(state.selection, cell.key(), cell.value(), m_flash)) {
            const auto edited = state.memory.certain.find(place);
            const uint8_t held =
                edited == state.memory.certain.end() ? ByteAt(m_flash, place) : edited->second;
            if (held != value)
                return QString("%1 shows %2, memory has %3 in place of %4 at %5")
                    .arg(cell.key().Text(), cell.value())
                    .arg(held)
                    .arg(value)
                    .arg(PlaceText(place));
        }
    }
    return {};
}
