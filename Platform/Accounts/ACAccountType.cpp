// The kind of an account.
#include "Platform/Accounts/ACAccountType.h"

namespace korvane {

const QString ACAccountTypeIdentifierFlickr = QStringLiteral("com.zorvex.flickr");
const QString ACAccountTypeIdentifierVimeo = QStringLiteral("com.zorvex.vimeo");

bool ACAccountType::isKnown() const {
    return !serviceName().isEmpty();
}

QString ACAccountType::serviceName() const {
    if (_identifier == ACAccountTypeIdentifierFlickr) return QStringLiteral("Flickr");
    return _identifier == ACAccountTypeIdentifierVimeo ? QStringLiteral("Vimeo") : QString();
}

} // namespace korvane
