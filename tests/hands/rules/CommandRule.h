// The bytes that reach the DUT are those of what the page shows.
//
// As a page goes busy, its widgets are read and packaged by the campaign. Each command in the
// journal must be one that the core's builders make of such a reading; no editor may be in the
// middle of an edit then, and the page shows the same request when the answer has come.
#pragma once

#include <QVector>

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"
#include "tests/hands/witness/DutCommands.h"

class CCommandRule : public IRule
{
public:
    CCommandRule(CDesk &desk, const CDutCommands &commands);

    const char *Name() const override { return "bytes"; }
    void OnBusy(QDockWidget *page, bool isBusy) override;
    QString After(const SDeed &deed) override;

    int Commands() const { return m_count; }

private:
    // What a page showed as it went busy.
    struct SShown
    {
        QPointer<QDockWidget> page;
        QString className;
        QJsonObject filled;
        QString unfinished;
        int deed;  // in which it did; what comes later the user may have changed
    };

    QString CheckCall(uint32_t index, const char *function);
    QString CheckShown(const SShown &shown) const;

    CDesk &m_desk;
    const CDutCommands &m_commands;
    QVector<SShown> m_shown;  // since the tool was quiet
    uint32_t m_next = 0;      // call of the journal
    int m_deed = 0;
    int m_count = 0;  // commands compared
};
