// At rest no box is open, and the window takes what the user does.
#pragma once

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

class CRestRule : public IRule
{
public:
    explicit CRestRule(CDesk &desk) : m_desk(desk) {}

    const char *Name() const override { return "rest"; }
    QString After(const SDeed &deed) override;

private:
    CDesk &m_desk;
};
