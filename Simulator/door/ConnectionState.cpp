#include "Simulator/door/ConnectionState.h"

#include "Simulator/door/Simulator.h"

#pragma GCC visibility push(default)
extern "C" {

int32_t VondSimConn_GetMdActiveIdx(uint32_t h, int32_t *index)
{
    return CSimulator::Instance().Run({EFunction::ModemActiveIndex, h, 0, {}, AnswerOf(index)},
                                      [&](SDut &dut) {
                                          *index = dut.profile.modemIndex;
                                          return SVerdict();
                                      });
}

int32_t VondSimConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType)
{
    return CSimulator::Instance().Run(
        {EFunction::ModemService, h, 0, RequestOf(&index), AnswerOf(serviceType)},
        [&](SDut &dut) -> SVerdict {
            if (index != dut.profile.modemIndex)
                return EResult::Modem;
            *serviceType = dut.profile.modemService;
            return {};
        });
}

}  // extern "C"
#pragma GCC visibility pop
