// What all tests of the simulated DUT share: a fresh DUT for each test, and its journal.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulator/VondSim.h"
#include "Vond/VondApp.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"

constexpr uint32_t kHandle = 0x51;
constexpr uint32_t kTimeoutMs = 10000;

// The handset profile, no faults, no journal.
class CSimulatorTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;
};

// The words that VOND_GetErrorString has for a result.
std::string ErrorText(VOND_RESULT result);
// JSON of a profile that lays the given keys over the handset.
std::string HandsetWith(const std::string &keys);
// The bytes of a call's request or answer in the journal.
std::vector<uint8_t> RequestBytes(uint32_t index);
std::vector<uint8_t> AnswerBytes(uint32_t index);
SVondSimCall CallAt(uint32_t index);
SVondSimCall LastCall();
