// The interface of a page's document: the word that its absolute paths begin with.
#pragma once

enum EModelInterface
{
    eInterfaceCmdIf = 0,      // test pages: "cmdIf"
    eInterfaceCalDataIf = 1,  // calibration pages: "calDataIf"
};
