// Does a packaged calibration page hold edits, or what it was given to show?
//
// A packaged document has both: trait.defaultValue is what the page was given, memberValue what its
// editors hold. A page that was only looked at holds what its editors make of the former. Where a
// list was given a text that it does not offer, its first option counts as untouched: a page shows
// that before its first data. Pure functions, any thread.
//
//   if (HoldsEdits(document, [&](ICalMove &move) { MoveApt(move, record); }))
#pragma once

#include <functional>

#include <QJsonObject>

#include "Controller/calibration/CalMove.h"

// walk: of the fields that the page shows, which stay as they are.
bool HoldsEdits(const QJsonObject &document, const std::function<void(ICalMove &)> &walk);
