// What the DUT runs, the user sees; and there is a way back from every state.
#pragma once

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

class CRunningRule : public IRule
{
public:
    explicit CRunningRule(CDesk &desk) : m_desk(desk) {}

    const char *Name() const override { return "running"; }
    QString After(const SDeed &deed) override;

private:
    CDesk &m_desk;
};
