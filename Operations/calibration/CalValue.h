// The kinds of value that calibration files hold. How each is written stands at CalCells.h.
//
//   CCalCells(record.plOffset).Read("-30.5,1", ECalValue::Db);
#pragma once

enum class ECalValue
{
    Number,
    Db,
    Volt,
};
