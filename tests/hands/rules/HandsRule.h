// The wheel changes nothing that has no focus, and a request does not move the focus.
//
// The selectors of the calibration pages keep their wheel.
#pragma once

#include <QMap>

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

class CHandsRule : public IRule
{
public:
    explicit CHandsRule(CDesk &desk) : m_desk(desk) {}

    const char *Name() const override { return "hands"; }
    void Before(SDeed::EKind kind) override;
    void OnBusy(QDockWidget *page, bool isBusy) override;
    QString After(const SDeed &deed) override;

private:
    QMap<const QWidget *, QString> AllEditors() const;
    QString CheckWheel(const QWidget *target) const;

    CDesk &m_desk;
    QMap<const QWidget *, QString> m_editors;
    QPointer<QWidget> m_focus;
    QString m_focusName;
    QPointer<QDockWidget> m_front;
    bool m_isRequest = false;
};
