#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/files/Preloaded.h"

int main(int argc, char **argv)
{
    StartUnderLibrary(argv);
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
