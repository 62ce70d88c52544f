// The kind of an account.
#include "Platform/Accounts/ACAccountType.h"

namespace korvane {

const QString ACAccountTypeIdentifierFlickr = QStringLiteral("com.zorvex.flickr");
const QString ACAccountTypeIdentifierVimeo = QStringLiteral("com.zorvex.vimeo");

bool ACAccountType::isKnown() const {
    return _identifier == ACAccountTypeIdentifierFlickr || _identifier == ACAccountTypeIdentifierVimeo;
}

} // namespace korvane
