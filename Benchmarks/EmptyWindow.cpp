// korvane-empty-window: a window of Qt Quick Controls with nothing in it, what the share sheet's is measured against.
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/EmptyWindow.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
