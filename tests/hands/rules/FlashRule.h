// The flash differs from the factory's only where the user edited, and there it has the edit.
//
// A model of what the core's memory may hold, by byte: what the user has edited under each
// selection, what a file has brought. It knows no more than the user can: which cells changed under
// his hands, which flows ended well. After a good Read a page shows what the flash has, or the edit
// since.
#pragma once

#include <map>
#include <set>

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/EditUnderWay.h"
#include "tests/hands/rules/Rule.h"
#include "tests/hands/witness/DutCommands.h"
#include "tests/hands/witness/FlashPlaces.h"

class CFlashRule : public IRule
{
public:
    // flashFile: of the simulated DUT, written at least once.
    CFlashRule(CDesk &desk, const CDutCommands &commands, const QString &flashFile);

    const char *Name() const override { return "flash"; }
    void Before(SDeed::EKind) override;
    void OnBusy(QDockWidget *page, bool isBusy) override;
    void OnStatus(QDockWidget *page, const QString &text) override;
    QString After(const SDeed &deed) override;

    int Edits() const { return m_editCount; }
    int Writes() const { return m_writeCount; }

private:
    using Cells = QMap<SCellKey, QString>;
    // What the core's memory of a page's item holds beside what the flash has.
    struct SMemory
    {
        std::map<FlashPlace, std::set<uint8_t>> possible;
        FlashBytes certain;    // in records that the last Read or Import has filled
        bool isRead = false;   // all records are, and nothing has failed since
        bool mayGrow = false;  // a file has come to records that no Read had filled
        // Records of which frequencies were edited: a block without any is left out of them.
        std::set<std::tuple<uint32_t, uint32_t, uint32_t>> resized;
    };
    struct SExport
    {
        SMemory memory;
        CFlashFile flash{QString()};
    };
    // A page as it was last seen at rest.
    struct SPageState
    {
        Selection selection;
        Cells cells;
        SMemory memory;
        SExport file;
        bool wasBusy = false;  // since then
        QStringList ends;      // status lines of flows since then
    };

    void LookAt(SPageState &state, const QDockWidget *page);
    void FindEdits(SPageState &state, const Cells &cells);
    QString CheckFlash();
    QString CheckChanges(const CFlashFile &now) const;
    QString CheckWritten() const;
    void EndFlow(const QString &className, SPageState &state, const QString &line);
    void Import(const QString &className, SPageState &state, bool isGood);
    QString CheckShown(const SPageState &state) const;

    CDesk &m_desk;
    const CDutCommands &m_commands;
    const QString m_file;
    CFlashFile m_flash;                 // as last seen
    uint32_t m_next = 0;                // call of the journal
    QMap<QString, SPageState> m_pages;  // by class
    CEditUnderWay m_edit;
    QString m_failure;
    int m_resets = 0;
    int m_editCount = 0;
    int m_writeCount = 0;
};
