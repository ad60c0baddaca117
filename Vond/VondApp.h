// VondApp: the closed library of connection queries, as this system sees it.
//
// h is the target handle that the host supplies. Both calls answer from the connection's own state
// and return 0 for success.
//
//   int32_t index = 0, service = 0;
//   VondConn_GetMdActiveIdx(handle, &index);
//   VondConn_GetMdSrv(handle, index, &service);   // 3 is a C2K modem
#pragma once

#include <cstdint>

extern "C" {

// Index of the active modem.
int32_t VondConn_GetMdActiveIdx(uint32_t h, int32_t *index);
// Service type of the modem at index; 3 is a C2K modem.
int32_t VondConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType);

}  // extern "C"
