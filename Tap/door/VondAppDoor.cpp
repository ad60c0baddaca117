// The functions of VondApp, each with what its call carries.
#include "Vond/VondApp.h"

#include "Tap/door/Through.h"

namespace {

using F = EFunction;

}  // namespace

#pragma GCC visibility push(default)
extern "C" {

int32_t VondConn_GetMdActiveIdx(uint32_t h, int32_t *index)
{
    return Through<F::ModemActiveIndex, decltype(VondConn_GetMdActiveIdx)>(
        {.handle = h, .answer = index, .answerSize = sizeof(*index)}, h, index);
}

int32_t VondConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType)
{
    return Through<F::ModemService, decltype(VondConn_GetMdSrv)>(
        {.handle = h,
         .request = &index,
         .requestSize = sizeof(index),
         .answer = serviceType,
         .answerSize = sizeof(*serviceType)},
        h, index, serviceType);
}

}  // extern "C"
#pragma GCC visibility pop
