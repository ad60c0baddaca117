#include "tests/controller/core/CoreFixture.h"

#include <QCoreApplication>

#include "Model/ModelText.h"
#include "tests/common/PoolJobs.h"

namespace {

constexpr int kLongMs = 20000;  // ends a broken test; never waited for in a good one

// The core's signals need an application object; one stands for the life of the program.
class CApplication : public ::testing::Environment
{
public:
    void SetUp() override { m_application.reset(new QCoreApplication(m_count, m_arguments)); }
    void TearDown() override { m_application.reset(); }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QCoreApplication> m_application;
};

const auto *const kApplication = ::testing::AddGlobalTestEnvironment(new CApplication);

}  // namespace

void CCoreTest::SetUp()
{
    CTargetTest::SetUp();
    // Answers come on pool threads; each is kept there and read when the pool is idle.
    QObject::connect(
        &m_core, &CNrCore::Signal_TestDone, &m_core,
        [this](const SEachItemOperationResult &result, const std::string &model) {
            m_testsDone.append({result, model});
            m_order.append("test");
        },
        Qt::DirectConnection);
    QObject::connect(
        &m_core, &CNrCore::Signal_TestStopDone, &m_core,
        [this](const SEachItemOperationResult &result) {
            m_stopsDone.append(result);
            m_order.append("stop");
        },
        Qt::DirectConnection);
}

void CCoreTest::TearDown()
{
    VondSim_Reset();  // opens gates that a failed test left held
    WaitForPool();
    CTargetTest::TearDown();
}

void CCoreTest::Run(const std::function<void()> &start)
{
    start();
    WaitForPool();
}

void CCoreTest::WaitForPool()
{
    ASSERT_TRUE(EndPoolJobs(kLongMs));
}

TextMap GoodValues()
{
    return {{"band", "n1"},
            {"dlBw", "5M"},
            {"dlFrequency", "2140000"},
            {"routeType", "Type1"},
            {"rxRoute", "1"},
            {"calType", "Partial-On Path0"},
            {"powerMode", "HPM"},
            {"path0MainRfGain", "60.1"},
            {"path0DivRfGain", "59.5"},
            {"path1MainRfGain", "58.25"},
            {"path1DivRfGain", "57"},
            {"path0MainGainIdx", "16"},
            {"path0DivGainIdx", "15"},
            {"path1MainGainIdx", "14"},
            {"path1DivGainIdx", "13"}};
}

TextMap BothPathsValues()
{
    TextMap values = GoodValues();
    values["routeType"] = "Type2";
    values["rxRoute"] = "101";
    values["calType"] = "Simultaneously";
    return values;
}

QJsonObject Packaged(const TextMap &values)
{
    QJsonObject packaged;
    for (auto value = values.begin(); value != values.end(); ++value)
        packaged.insert(value.key(), value.value());
    return {
        {"modelName", "Cont RX"},
        {"cmdIf", QJsonObject{{"request",
                               QJsonObject{{"group1", QJsonObject{{"memberValue", packaged}}}}}}}};
}

std::string PackagedText(const TextMap &values)
{
    return ModelToText(Packaged(values));
}
