// A page that lacks one of the paths that its driver writes: the message, the log line, and what is
// written until then. Each page is walked path by path.
#include <QSet>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdaterFixture.h"
#include "tests/controller/capability/WrittenPaths.h"

namespace {

class WriteFailureTest : public CUpdaterTest, public ::testing::WithParamInterface<EPageId>
{
protected:
    void SetUp() override
    {
        CUpdaterTest::SetUp();
        m_rows = WrittenPaths(GetParam());
        m_template = TemplateOf(GetParam());
        m_patched = ExpectedOf(GetParam());
    }
    // The page with the first rows written as the whole page would have them.
    QJsonObject WithRows(QJsonObject page, int count) const
    {
        for (int i = 0; i < count; ++i)
            Set(page, m_rows[i].path, At(m_patched, m_rows[i].path));
        return page;
    }

    QVector<SWrittenPath> m_rows;
    QJsonObject m_template;
    QJsonObject m_patched;
};

TEST_P(WriteFailureTest, TableHoldsEveryPathThatIsWrittenOnce)
{
    EXPECT_EQ(Differences(WithRows(m_template, m_rows.size()), m_patched), "");
    QSet<QString> paths;
    for (const SWrittenPath &row : qAsConst(m_rows))
        paths.insert(row.path);
    EXPECT_EQ(paths.size(), m_rows.size());
}

TEST_P(WriteFailureTest, MissingPathIsLoggedAndReportedAndEndsThePage)
{
    const QString modelName = m_template.value("modelName").toString();
    ASSERT_FALSE(modelName.isEmpty());
    for (int i = 0; i < m_rows.size(); ++i) {
        const SWrittenPath &row = m_rows[i];
        SCOPED_TRACE(qPrintable(row.path));
        QJsonObject page = m_template;
        Remove(page, row.path);
        QJsonObject expected = WithRows(page, i);
        expected.insert("modelIntegrity", Failed({row.reported}));

        const LogCapture log(lcUpdate());
        EXPECT_FALSE((m_updater.*FindPage(GetParam()).driver)(page));
        EXPECT_EQ(Differences(page, expected), "");
        EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList(modelName + " " + row.logged));
    }
}

TEST_P(WriteFailureTest, MessageOfAnEarlierFailureStaysInFront)
{
    QJsonObject page = m_template;
    Remove(page, m_rows.last().path);
    EXPECT_FALSE((m_updater.*FindPage(GetParam()).driver)(page));
    EXPECT_FALSE((m_updater.*FindPage(GetParam()).driver)(page));
    Remove(page, m_rows.first().path);
    EXPECT_FALSE((m_updater.*FindPage(GetParam()).driver)(page));
    EXPECT_EQ(page.value("modelIntegrity"),
              Failed({m_rows.last().reported, m_rows.last().reported, m_rows.first().reported}));
}

INSTANTIATE_TEST_SUITE_P(Pages, WriteFailureTest, ::testing::ValuesIn(kPatchedPages),
                         [](const auto &info) { return PageLabel(info.param); });

}  // namespace
