// Names of members as a plan writes them.
//
// "request.group1.band", "group1.band" or "band", with a column in brackets behind it: "freq[3]". A short name
// has to fit one of the candidates. Pure functions.
//
//   const SParsedName name = ParseName("request.group2.dlFrequency[0]");
//   const SNameMatch match = MatchName(name, {"request.group2.dlFrequency", ...}, "editor");
//   if (match.index < 0) return match.refusal;
#pragma once

#include "Runner/bench/BenchTypes.h"

struct SParsedName
{
    QString name;     // without the brackets
    int column = -1;  // -1: no brackets
    bool isGood = true;
};

SParsedName ParseName(const QString &text);

// True when the name is the candidate's whole name, or its end behind a point.
bool IsNameOf(const QString &name, const QString &candidate);

struct SNameMatch
{
    int index = -1;  // of the one candidate; -1: none, or several
    bool isSeveral = false;
    SRefusal refusal = {};
};

// what: the word for one of the candidates, as "editor".
SNameMatch MatchName(const QString &name, const QStringList &candidates, const QString &what);
