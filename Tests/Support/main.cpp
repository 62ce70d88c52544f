// GoogleTest with the event loop that the main queue needs.
#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    qputenv("LC_ALL", "C.UTF-8"); // texts and numbers are compared as they are in English
    qunsetenv("LANGUAGE");
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // each in a process of its own: Qt's threads do not fork
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
