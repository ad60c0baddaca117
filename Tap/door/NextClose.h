// The dlclose behind the tap's own.
#pragma once

// As dlclose, and nobody forgets a thing: for a library that stays loaded by somebody else.
int CloseLibrary(void *library);
