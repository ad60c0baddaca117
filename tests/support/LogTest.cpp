#include "Support/Log.h"

#include <gtest/gtest.h>

namespace {

// The defaults of the categories are under test, not the rules that a test run is started with.
// Before main, because the rules are read with the first category that is used.
const bool g_rulesRemoved = qunsetenv("QT_LOGGING_RULES");

int g_argumentsBuilt = 0;

int BuildArgument()
{
    return ++g_argumentsBuilt;
}

int g_linesLogged = 0;

void CountLine(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++g_linesLogged;
}

}  // namespace

TEST(Log, EveryCategoryIsOnFromDebugUp)
{
    ASSERT_TRUE(g_rulesRemoved);
    for (const QLoggingCategory *category : {&lcForm(), &lcEngine(), &lcCore(), &lcUpdate(),
                                             &lcCommand(), &lcTarget(), &lcCalibration()})
        EXPECT_TRUE(category->isDebugEnabled()) << category->categoryName();
}

TEST(Log, CategoriesHaveTheirNames)
{
    EXPECT_STREQ(lcForm().categoryName(), "quorlin.form");
    EXPECT_STREQ(lcEngine().categoryName(), "quorlin.engine");
    EXPECT_STREQ(lcCore().categoryName(), "quorlin.core");
    EXPECT_STREQ(lcUpdate().categoryName(), "quorlin.update");
    EXPECT_STREQ(lcCommand().categoryName(), "quorlin.command");
    EXPECT_STREQ(lcTarget().categoryName(), "quorlin.target");
    EXPECT_STREQ(lcCalibration().categoryName(), "quorlin.calibration");
}

TEST(Log, ALogThatIsOffBuildsNoArguments)
{
    const QtMessageHandler former = qInstallMessageHandler(CountLine);
    QLoggingCategory::setFilterRules("quorlin.command.debug=false");
    qCDebug(lcCommand) << BuildArgument();
    EXPECT_EQ(g_argumentsBuilt, 0);
    EXPECT_EQ(g_linesLogged, 0);

    QLoggingCategory::setFilterRules(QString());
    qCDebug(lcCommand) << BuildArgument();
    EXPECT_EQ(g_argumentsBuilt, 1);
    EXPECT_EQ(g_linesLogged, 1);
    qInstallMessageHandler(former);
}
