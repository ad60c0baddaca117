// Reads a list of numbers that is written as this tool writes it, straight from the wide text of an
// INI file and in little time: a load reads millions of them.
//
// Plain is a number as CCalCells appends it to a list: "1920000", "-30.50000", "3.4V"; blanks,
// other digits behind the point, a plus or an exponent are not. What is no plain list is left to
// CCalCells, which reads it with patience; of a plain list both make the same values.
//
// Pure function, any thread.
//
//   std::array<int64_t, 64> values;
//   ReadPlainList(L"-30.50000,1.00000", ECalValue::Db, values);   // 2: -976, 32
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "Operations/calibration/CalValue.h"

// The number of values that the list has, at most as many as there is room for; what it holds
// beyond them is not looked at. Nothing when the list is not plain.
std::optional<size_t> ReadPlainList(const wchar_t *text, ECalValue kind, std::span<int64_t> values);
