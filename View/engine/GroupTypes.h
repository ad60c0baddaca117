// groupType of a document's group: how its members are shown.
#pragma once

enum EGroupType
{
    eGroupScalar = 1,       // each member in a widget of its own
    eGroupRowTable = 2,     // a growing table of results
    eGroupColumnTable = 3,  // arrays edited in a table
};
