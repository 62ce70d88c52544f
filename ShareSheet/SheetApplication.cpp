// The window program.
#include "ShareSheet/SheetApplication.h"

namespace korvane {

bool SheetApplication::open(const QStringList &) {
    _engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Korvane/Sheet/qml/Main.qml")));
    return !_engine.rootObjects().isEmpty();
}

} // namespace korvane
