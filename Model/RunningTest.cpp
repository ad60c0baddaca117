#include "Model/RunningTest.h"

#include <chrono>

qint64 RunningClockMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
