// An edit of one editor, as the text before and behind it. Plain values.
#pragma once

#include <vector>

#include <QString>

#include "View/undo/EditorPlace.h"

struct SCellEdit
{
    SEditorPlace place = {};
    QString from = {};
    QString to = {};
};

using CellEdits = std::vector<SCellEdit>;
