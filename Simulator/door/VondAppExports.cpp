// The C interface of VondApp. The state is libVondCore.so's, so that both libraries show one DUT.

#include "Vond/VondApp.h"

#include "Simulator/door/ConnectionState.h"

#pragma GCC visibility push(default)
extern "C" {

int32_t VondConn_GetMdActiveIdx(uint32_t h, int32_t *index)
{
    return VondSimConn_GetMdActiveIdx(h, index);
}

int32_t VondConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType)
{
    return VondSimConn_GetMdSrv(h, index, serviceType);
}

}  // extern "C"
#pragma GCC visibility pop
