// Unloading of libraries, as the tap sees it: every dlclose of the program passes here.
#pragma once

// Closes a handle of the tap's own, with which nothing goes.
void CloseQuietly(void *library);
