// The main function of test programs that do not define one.

#include <gtest/gtest.h>

#include "tests/support/run_tests.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    return ostrel::tests::run_tests();
}
