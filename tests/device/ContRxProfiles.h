// DUTs whose first route on n1, route 1, takes the frequency that the Continuous RX page's document
// starts with: a type 1 route, or a type 2 route with the gain mode flag.
#pragma once

#include <QComboBox>

#include "tests/common/PluginSession.h"

inline QString Type1Profile()
{
    return R"({"name": "type 1 at 1950 MHz", "base": "handset",
               "rxLimits": [{"band": 1, "route": 1, "kHz": [1920000, 1980000]}]})";
}

inline QString Type2Profile()
{
    return R"({"name": "type 2 at 1950 MHz", "base": "handset",
               "rxType1Routes": [],
               "rxType2Routes": [{"band": 1, "route": 1, "gainMode": 1, "antMask": 6, "feRoute": 601,
                                  "ports": ["RX_0M", "RX_0D"], "srx": [5, 6], "mimoPairs": []}],
               "rxLimits": [{"band": 1, "route": 1, "kHz": [1920000, 1980000]}]})";
}

// Widget of a member of the page's request.
inline QString MemberName(const QString &member)
{
    return "cmdIf_request_group1_memberProperty_" + member;
}

inline void Choose(const CPluginSession &session, const QString &member, const QString &text)
{
    auto *box = session.Find<QComboBox>(MemberName(member));
    QVERIFY(box);
    QVERIFY2(box->findText(text) >= 0, qPrintable(member + " has no " + text));
    box->setCurrentText(text);
}
