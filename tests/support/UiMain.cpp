#include "support/WarningTrap.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    varnhold::test::installWarningTrap();
    return RUN_ALL_TESTS();
}
