// Supply of the pages' documents.
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

class DataModelTest : public CCoreTest
{
protected:
    QString FileWith(const QByteArray &content)
    {
        const QString path = m_folder.filePath("model.json");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    static QByteArray Resource()
    {
        QFile file(":/NrContRxV7.json");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir m_folder;
};

const SPageRow &kContRxPage = FindPage(EPageId::ContRx);
constexpr char kCannotGet[] = "CNrCore::GetDataModel: cannon get the data Model->Continuous RX";

// The driver runs on the empty object, finds nothing to patch, and says so.
constexpr char kNearEmpty[] =
    R"({"modelIntegrity":{"integrity":false,"messageList":["Update band failed"]}})";

TEST_F(DataModelTest, ContRxDocumentComesAsCompactText)
{
    const std::string text = m_core.GetDataModel("Continuous RX");
    EXPECT_EQ(text.find('\n'), std::string::npos);
    const QJsonObject document = ModelFromText(text);
    EXPECT_EQ(document.value("modelName"), QJsonValue("Cont RX"));
    EXPECT_TRUE(document.value("cmdIf").isObject());
    EXPECT_TRUE(m_core.GetErrorMessage().isEmpty());
}

TEST_F(DataModelTest, PageWithoutADocumentHasAnEmptyOne)
{
    for (const char *page :
         {"Route Calculator", "RSSI Scan", "PRACH TX", "PUCCH TX", "SRS TX", "CCA BW Calculator"})
        EXPECT_EQ(m_core.GetDataModel(page), "{}") << page;
    EXPECT_TRUE(m_core.GetErrorMessage().isEmpty());
}

TEST_F(DataModelTest, UnknownPageNameActsAsRssi)
{
    EXPECT_EQ(m_core.GetDataModel("no such page"), m_core.GetDataModel("RSSI"));
    EXPECT_EQ(m_core.GetDataModel("Error Page"), m_core.GetDataModel("RSSI"));
    EXPECT_EQ(m_core.GetDataModel(""), m_core.GetDataModel("RSSI"));
}

TEST_F(DataModelTest, OtherGenerationHasAnEmptyText)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        EXPECT_EQ(m_core.GetDataModel("Continuous RX"), "") << generation;
        EXPECT_EQ(m_core.GetDataModel("Route Calculator"), "") << generation;
    }
}

TEST_F(DataModelTest, UnreadableGenerationHasAnEmptyText)
{
    Fault(kNrCapability);
    EXPECT_EQ(m_core.GetDataModel("Continuous RX"), "");
}

TEST_F(DataModelTest, ProcessWideCoreIsOneAndSupplied)
{
    EXPECT_EQ(&GetCore(), &GetCore());
    EXPECT_EQ(GetCore().GetDataModel("Continuous RX"), m_core.GetDataModel("Continuous RX"));
}

TEST_F(DataModelTest, TruncatedResourceLeavesAMessageAndANearEmptyDocument)
{
    const QByteArray whole = Resource();
    for (const int length : {0, 1, 100, whole.size() / 2, whole.size() - 3}) {
        CTestCore core;
        const LogCapture log(lcCore());
        EXPECT_EQ(core.LoadDataModel(kContRxPage, FileWith(whole.left(length))), kNearEmpty)
            << length;
        EXPECT_EQ(core.GetErrorMessage(), QString(kCannotGet)) << length;
        EXPECT_TRUE(log.Holds(QtCriticalMsg, "is invalid data model")) << length;
    }
}

TEST_F(DataModelTest, FileReadsAsTheResourceDoes)
{
    const std::string text = m_core.LoadDataModel(kContRxPage, FileWith(Resource()));
    EXPECT_EQ(text, m_core.GetDataModel("Continuous RX"));
    EXPECT_TRUE(m_core.GetErrorMessage().isEmpty());
}

TEST_F(DataModelTest, DocumentIsPatchedForTheDutThatIsThereAfterAReset)
{
    const auto bands = [this] {
        const QJsonObject document = ModelFromText(m_core.GetDataModel("Continuous RX"));
        return GetJsonValueConst(document, "cmdIf.request.group1.memberProperty.band.trait.value")
            .toArray();
    };
    EXPECT_TRUE(bands().contains("n78"));
    ASSERT_EQ(VondSim_SetProfileText(R"({"name": "one", "base": "handset", "txRoutes": [],
        "rxType1Routes": [], "rxType2Routes": [], "txLimits": [], "rxLimits": [],
        "bands": [{"band": 41}]})"),
              0);
    EXPECT_TRUE(bands().contains("n78"));
    m_core.ResetTargetCache();
    EXPECT_EQ(bands(), QJsonArray{"n41"});
}

TEST_F(DataModelTest, MissingResourceLeavesAMessageAndAnEmptyDocument)
{
    const LogCapture log(lcCore());
    EXPECT_EQ(m_core.LoadDataModel(kContRxPage, ":/NoSuchModel.json"), kNearEmpty);
    EXPECT_EQ(m_core.GetErrorMessage(), QString(kCannotGet));
    EXPECT_TRUE(log.Holds(QtCriticalMsg, ":/NoSuchModel.json"));
}

TEST_F(DataModelTest, ReadThatFailsLeavesItsTargetAsItWas)
{
    QJsonObject document{{"old", 1}};
    QFile broken(FileWith("{\"a\":"));
    EXPECT_FALSE(m_core.ReadDataModel(broken, document));
    QFile missing(m_folder.filePath("missing.json"));
    EXPECT_FALSE(m_core.ReadDataModel(missing, document));
    EXPECT_EQ(document, (QJsonObject{{"old", 1}}));
}

TEST_F(DataModelTest, FileWithoutAnObjectAtItsRootReadsAsAnEmptyDocument)
{
    QJsonObject document{{"old", 1}};
    QFile file(FileWith("[1, 2]"));
    EXPECT_TRUE(m_core.ReadDataModel(file, document));
    EXPECT_TRUE(document.isEmpty());
}

}  // namespace
