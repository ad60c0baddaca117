// What the calibration commands say, and whom they ask.
//
// Results go to stdout; progress, questions and troubles to stderr. Progress is shown on a terminal alone.
//
//   Say("Backup: " + file);
//   if (!Ask("Write 3 records?")) ...
#pragma once

#include <csignal>
#include <iterator>

#include <QString>

#include "Controller/guard/GuardedWrite.h"

// Control characters of others are shown as "?".
void Say(const QString &text);
void SayBytes(const QByteArray &bytes);
// errno of the first text that stdout has not taken; 0: none. Nobody reading on is no error.
int OutputError();
void Complain(const QString &text);  // "quorlin: text"
bool CanAsk();                       // somebody sits at the terminal
bool Ask(const QString &question);   // anything but y or yes is no
void ShowProgress(EGuardStep step, int routesDone, int routesInAll);
// Takes the line of the progress away.
void EndProgress();

// While it lives the keyboard and the system do not end the program: a write that has begun is carried to
// its end.
class CUndisturbed
{
public:
    CUndisturbed();
    ~CUndisturbed();
    CUndisturbed(const CUndisturbed &) = delete;
    CUndisturbed &operator=(const CUndisturbed &) = delete;

private:
    using Handler = void (*)(int number);

    static constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
    Handler m_before[std::size(kSignals)] = {};
};
