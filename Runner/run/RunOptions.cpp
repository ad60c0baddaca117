#include "Runner/run/RunOptions.h"

#include <algorithm>
#include <array>

namespace {

int RankOf(int code)
{
    constexpr std::array<int, 5> kRanks = {eRunGood, eRunFailed, eRunBroken, eRunUnsupported,
                                           eRunWrong};
    return static_cast<int>(std::find(kRanks.begin(), kRanks.end(), code) - kRanks.begin());
}

}  // namespace

void CRunExit::Note(int code)
{
    if (RankOf(code) > RankOf(m_code))
        m_code = code;
}
