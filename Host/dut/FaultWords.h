// A fault of the simulated DUT in words, from its JSON object.
//
//     ParameterWords({{"kind", "delay"}, {"ms", 3000}})       // "3000 ms"
//     WhenWords({{"nth", 2}}, {})                             // "call 2"
//     WhenWords({}, {{"function", "*"}, {"every", 10}})       // "each 10th call of *"
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// The result of a fault "fail" that names none.
inline constexpr int kFailResult = 4;

// C names of the functions that a fault can strike.
QStringList FaultFunctions();

QString ParameterWords(const QJsonObject &fault);
// The fault's own condition, or that of the scenario's step that it comes from.
QString WhenWords(const QJsonObject &fault, const QJsonObject &when);
