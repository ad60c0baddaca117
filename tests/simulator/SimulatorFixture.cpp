#include "tests/simulator/SimulatorFixture.h"

namespace {

std::vector<uint8_t> Bytes(uint32_t index, uint32_t (*read)(uint32_t, void *, uint32_t))
{
    std::vector<uint8_t> bytes(read(index, nullptr, 0));
    read(index, bytes.data(), static_cast<uint32_t>(bytes.size()));
    return bytes;
}

}  // namespace

void CSimulatorTest::SetUp()
{
    VondSim_Reset();
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
}

void CSimulatorTest::TearDown()
{
    VondSim_Reset();
}

std::string ErrorText(VOND_RESULT result)
{
    const char *text = VOND_GetErrorString(result);
    return text != nullptr ? text : "(null)";
}

std::string HandsetWith(const std::string &keys)
{
    return "{\"base\": \"handset\", " + keys + "}";
}

std::vector<uint8_t> RequestBytes(uint32_t index)
{
    return Bytes(index, VondSim_GetRequest);
}

std::vector<uint8_t> AnswerBytes(uint32_t index)
{
    return Bytes(index, VondSim_GetAnswer);
}

SVondSimCall CallAt(uint32_t index)
{
    SVondSimCall call = {};
    EXPECT_EQ(VondSim_GetCall(index, &call), 0) << "no call " << index;
    return call;
}

SVondSimCall LastCall()
{
    return CallAt(VondSim_CallCount() - 1);
}
