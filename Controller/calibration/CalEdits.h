// Tells whether a packaged calibration page holds edits of the user.
//
// A packaged document has both: trait.defaultValue is what the page was given to show, memberValue
// is what its editors hold. An editor that nobody touched holds what CCalEditor says of the given
// text. A list that was given a text which it does not offer shows its first option; that counts as
// untouched, too. Pure functions, any thread.
//
//   if (HoldsEdits(document, [&](ICalMove &move) { MoveApt(move, record); }))
#pragma once

#include <functional>

#include <QJsonObject>

#include "Controller/calibration/CalMove.h"

// walk: visits the fields that the page shows; it changes none of them.
bool HoldsEdits(const QJsonObject &document, const std::function<void(ICalMove &)> &walk);
