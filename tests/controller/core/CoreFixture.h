// What all tests of the core share: a core of their own on a fresh DUT, the answers that it has
// signalled, and documents of the continuous RX page.
//
//   TEST_F(CCoreTest, ...)
//   {
//       Run([&] { m_core.Test("Continuous RX", PackagedText(GoodValues())); });
//       EXPECT_EQ(m_testsDone.value(0).result.status, 0);
//   }
#pragma once

#include <functional>
#include <memory>

#include <QMap>

#include "Controller/core/NrCore.h"
#include "tests/operations/TargetFixture.h"

// A core that is not the process-wide one, with its supply of documents open to tests.
class CTestCore : public CNrCore
{
public:
    CTestCore() = default;
    using CNrCore::LoadDataModel;
};

struct STestAnswer
{
    SEachItemOperationResult result;
    std::string model;
};

class CCoreTest : public CTargetTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Starts something and waits until the pool is idle again.
    void Run(const std::function<void()> &start);
    void WaitForPool();

    CTestCore m_core;
    QVector<STestAnswer> m_testsDone;
    QVector<SEachItemOperationResult> m_stopsDone;
    QStringList m_order;  // "test" and "stop" as they were signalled
};

using TextMap = QMap<QString, QString>;

// Packaged values that the handset accepts: n1, type 1 route 1, path 0.
TextMap GoodValues();
// Type 2 route 101 on n1 with gain mode, both paths.
TextMap BothPathsValues();
// A document with the values in group1's memberValue.
QJsonObject Packaged(const TextMap &values);
std::string PackagedText(const TextMap &values);
