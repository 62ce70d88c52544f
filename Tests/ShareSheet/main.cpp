// GoogleTest with a window system that nobody sees.
#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    qputenv("LC_ALL", "C.UTF-8"); // texts and numbers are compared as they are in English
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("LANGUAGE");
    ::testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
