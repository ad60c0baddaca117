// What the faked target answers: the records of a DUT, with any bytes laid over them.
//
// The DUTs are profiles of the simulated one, whose answers are taken once. Each input then names a
// DUT and its changes, so that an answer is good but for what the input says, and the reader gets
// past the first check. FakeVond.cpp hands the answers out; a changed answer stays the same for
// every call. One thread.
//
//   FuzzAnswers::TakeAll();                                 // once
//   FuzzAnswers::Plug("largest");
//   FuzzAnswers::Overlay("VOND_MMRf_GetRouteConfigV7_r", 448, "\xff\xff", 1);
//   FuzzAnswers::Fail("VOND_NRf_GetBandRxInfo_r", 4);
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QByteArray>

struct SFuzzAnswer
{
    const char *function;
    std::size_t size;  // bytes of the record or the status word; 0: a result alone
};

// All functions of VondCore that answer a record or a result.
const std::vector<SFuzzAnswer> &FuzzAnswerTable();

namespace FuzzAnswers {

constexpr const char *kDuts[] = {"handset", "largest"};

// Asks the simulated DUTs.
void TakeAll();

// From now on the DUTs say that they have few routes: four TX, three of type 1, one of type 2.
void CutRoutes();

// The DUT's own answers; an unknown name stands for the first DUT. The caches of the capability
// know nothing afterwards.
void Plug(const QByteArray &dut);
// Lays the bytes over the answer, times times one behind another; what would lie behind the end is
// left out. Unknown functions are passed over.
void Overlay(const QByteArray &function, uint32_t offset, const QByteArray &bytes, uint32_t times);
void Fail(const QByteArray &function, int32_t result);

// The answer into the record; the result of the call.
int32_t Give(const char *function, void *record, std::size_t size);
// What lies over the answer alone, into a record that the caller has filled.
int32_t GiveOverlay(const char *function, void *record, std::size_t size);

}  // namespace FuzzAnswers
