// Calls to the simulated DUT, as the fuzz target of its profiles makes them.
//
// All capability reads that a tool makes, among them the hardware behind every route of the DUT's
// own route table, the chip names, the connection, and what the flash holds; then each kind of test
// with commands that suit the handset. Every answer's bytes are kept, so that two rounds can be
// compared.
//
//   const SAnswers answers = CallAll();
//   Require(answers == CallAll(), "...");
#pragma once

#include <vector>

#include <QByteArray>

#include "Vond/VondCapabilityRecords.h"

// What one call brought: its result and its record, all 0 unless the DUT answered.
struct SAnswer
{
    int32_t result = 0;
    QByteArray record;

    bool operator==(const SAnswer &other) const
    {
        return result == other.result && record == other.record;
    }
};

struct SAnswers
{
    std::vector<SAnswer> capability;
    std::vector<SAnswer> radio;
    QByteArray firstResult;          // the first call's result in words
    SMMRfRouteConfigV7 config = {};  // the NR one, as read
    bool isConfigRead = false;

    bool operator==(const SAnswers &other) const
    {
        return capability == other.capability && radio == other.radio &&
               firstResult == other.firstResult;
    }
};

SAnswers CallAll();
