// GoogleTest with windows that nobody sees.
#include <QGuiApplication>
#include <QStyleHints>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8"); // texts and numbers are compared as they are in English
    qunsetenv("LANGUAGE");
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
