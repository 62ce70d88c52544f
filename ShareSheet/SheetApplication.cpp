// The window program.
#include "ShareSheet/SheetApplication.h"

namespace korvane {
namespace {

const QString qmlFolder = QStringLiteral("qrc:/qt/qml/Korvane/Sheet/qml/");

} // namespace

SheetApplication::SheetApplication() {
    _engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

bool SheetApplication::open(const SheetRequest &request) {
    switch (request.page) {
    case SheetRequest::Flickr:
    case SheetRequest::Vimeo:
        return _openWindow(QStringLiteral("SheetPage"), {});
    case SheetRequest::Settings:
    case SheetRequest::Uploads:
    case SheetRequest::Help:
        break;
    }
    return false;
}

bool SheetApplication::_openWindow(const QString &page, const QVariantMap &properties) {
    _engine.setInitialProperties({{QStringLiteral("firstPage"), QUrl(qmlFolder + page + QStringLiteral(".qml"))},
                                  {QStringLiteral("firstPageProperties"), properties}});
    _engine.load(QUrl(qmlFolder + QStringLiteral("Main.qml")));
    return !_engine.rootObjects().isEmpty();
}

} // namespace korvane
