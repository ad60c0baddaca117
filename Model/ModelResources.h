// The page documents that are compiled into the library (":/NrContRxV7.json" and its like).
//
// They lie in a static library, so nothing registers them by itself: whoever reads a document calls
// InitModelResources() first. Cheap and safe to call again. GUI thread or before other threads
// start.
#pragma once

void InitModelResources();
