// What the user is to see and hear behind a request whose call went wrong in a known way: from the
// fault, and, where the DUT lied at random, from the lie that the journal holds. Any thread.
//
//   const SWords words = WordsOf(page, request, fault, Journal());
//   words.status   // "Rsrp start failed..."
#pragma once

#include <QString>
#include <QVector>

#include "tests/campaign/DoorFaults.h"
#include "tests/campaign/Requests.h"
#include "tests/common/SimJournal.h"

struct SWords
{
    bool isGood = true;
    bool isEither = false;   // a lie that may pass or not: AnyFailureWords hold, too
    bool isAnyText = false;  // in the box, whatever the reason
    bool hasBox = false;
    QString status;
    QString title;
    QString text;              // in a box, whole; of a model box: what it contains
    QString informative;       // in a box
    bool isStartOnly = false;  // informative and text are how they begin, the rest is random
    int icon = 0;              // QMessageBox::Icon
    QString enabled;
    QString shown;  // text of the widget that shows the failure
    EState state = EState::Idle;
};

SWords GoodWords(const SRequest &request);
// A failure whose reason is open.
SWords AnyFailureWords(const SRequest &request);
SWords WordsOf(const SPage &page, const SRequest &request, const SDoorFault &fault,
               const QVector<SJournalCall> &calls);
