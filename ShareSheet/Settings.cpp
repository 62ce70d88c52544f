// The settings page: accounts and preferences.
#include "ShareSheet/Settings.h"

#include "Platform/Preferences/CFPreferences.h"
#include "Platform/Preferences/KorvaneSettings.h"

namespace korvane {

Settings::Settings(QObject *parent)
    : QObject(parent), _flickr(ACAccountType(ACAccountTypeIdentifierFlickr), QStringLiteral("Flickr")),
      _vimeo(ACAccountType(ACAccountTypeIdentifierVimeo), QStringLiteral("Vimeo")) {}

int Settings::flickrParallelUploads() const {
    return KorvaneSettings::flickrParallelUploads();
}

int Settings::vimeoParallelUploads() const {
    return KorvaneSettings::vimeoParallelUploads();
}

int Settings::displayImageMaxPixels() const {
    return KorvaneSettings::displayImageMaxPixels();
}

bool Settings::uploadsOverCellular() const {
    return KorvaneSettings::uploadsOverCellular();
}

void Settings::setFlickrParallelUploads(int count) {
    _set("FlickrParallelUploads", qint64(count));
}

void Settings::setVimeoParallelUploads(int count) {
    _set("VimeoParallelUploads", qint64(count));
}

void Settings::setDisplayImageMaxPixels(int pixels) {
    _set("DisplayImageMaxPixels", qint64(pixels));
}

void Settings::setUploadsOverCellular(bool allowed) {
    _set("UploadsOverCellular", allowed);
}

void Settings::_set(const char *key, const QVariant &value) {
    const QString domain = QStringLiteral("com.zorvex.korvane");
    CFPreferencesSetAppValue(QLatin1String(key), value, domain);
    _problem = CFPreferencesAppSynchronize(domain) ? QString()
                                                   : tr("The setting could not be written. It holds until this window "
                                                        "is closed.");
    Q_EMIT changed();
}

} // namespace korvane
