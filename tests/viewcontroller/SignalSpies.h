// All signals that a view controller emits, whichever they are.
//
//   CSignalSpies spies(ctrl);
//   ctrl.RsrpResetCounter();
//   Settle();
//   QCOMPARE(spies.Fired().size(), 1);
#pragma once

#include <memory>
#include <vector>

#include <QMetaMethod>
#include <QSignalSpy>

#include "tests/viewcontroller/Requests.h"

struct SFired
{
    QString signal;
    QStringList arguments;  // in words
};

class CSignalSpies
{
public:
    explicit CSignalSpies(const CQuorlinViewCtrl &ctrl)
    {
        const QMetaObject &meta = CQuorlinViewCtrl::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                m_spies.push_back(std::make_unique<QSignalSpy>(&ctrl, meta.method(i)));
        }
    }
    // Since the spies were set up.
    QVector<SFired> Fired() const
    {
        QVector<SFired> fired;
        for (const auto &spy : m_spies) {
            const QString signature = spy->signal();
            for (const QVariantList &arguments : *spy)
                fired.append({signature.left(signature.indexOf('(')), Words(arguments)});
        }
        return fired;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};
