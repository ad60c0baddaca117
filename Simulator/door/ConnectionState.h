// The way from libVondApp.so to the state in libVondCore.so: the two connection queries as VondApp
// offers them. Exported by libVondCore.so for that library alone.
#pragma once

#include <cstdint>

extern "C" {

int32_t VondSimConn_GetMdActiveIdx(uint32_t h, int32_t *index);
int32_t VondSimConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType);

}  // extern "C"
