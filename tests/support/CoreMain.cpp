#include "support/WarningTrap.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    varnhold::test::installWarningTrap();
    return RUN_ALL_TESTS();
}
