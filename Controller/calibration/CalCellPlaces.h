// Where an item's page shows a field of a record: the selection, the member and the column.
//
// The walks of the pages tell it (CalWalks.h), so no list stands here twice. Pure function, any thread.
//
//   const SCalCellPlace place = CalCellPlaceOf(ECalRoute::Tx, {.band = 78, .route = 7}, 456);
//   place.selection   // {{"band", "n78"}, {"txRoute", "7"}, {"aggBwRegion", "BW0"}}
//   place.member      // "calDataIf.data.group7.memberProperty.paHighPaGain"
//   place.column      // 0
#pragma once

#include <cstdint>

#include "Model/CalDifferences.h"
#include "Operations/calibration/CalRoutes.h"

// offset: of the field in the kind's record. A field that no page shows has a selection alone.
SCalCellPlace CalCellPlaceOf(ECalRoute kind, const SCalPlace &place, uint32_t offset);
// The selection of a record.
SCalCellPlace CalRecordPlaceOf(ECalRoute kind, const SCalPlace &place);
