// The settings page: accounts and preferences.
#include "ShareSheet/Settings.h"

#include "Platform/Preferences/KorvaneSettings.h"

namespace korvane {
namespace {

QList<int> choicesWithin(const KorvaneSettings::Limits &limits) {
    QList<int> choices;
    for (const int count : {1, 2, 3, 4, 6, 8, 16})
        if (count >= limits.least && count <= limits.most) choices.append(count);
    return choices;
}

} // namespace

Settings::Settings(QObject *parent)
    : QObject(parent), _flickr(ACAccountType(ACAccountTypeIdentifierFlickr), QStringLiteral("Flickr")),
      _vimeo(ACAccountType(ACAccountTypeIdentifierVimeo), QStringLiteral("Vimeo")), _watch(KorvaneSettings::path()) {
    connect(&_watch, &FileWatch::changed, this, &Settings::changed);
}

QList<int> Settings::flickrParallelChoices() const {
    return choicesWithin(KorvaneSettings::flickrParallelLimits);
}

QList<int> Settings::vimeoParallelChoices() const {
    return choicesWithin(KorvaneSettings::vimeoParallelLimits);
}

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
    _told(KorvaneSettings::setFlickrParallelUploads(count));
}

void Settings::setVimeoParallelUploads(int count) {
    _told(KorvaneSettings::setVimeoParallelUploads(count));
}

void Settings::setDisplayImageMaxPixels(int pixels) {
    _told(KorvaneSettings::setDisplayImageMaxPixels(pixels));
}

void Settings::setUploadsOverCellular(bool allowed) {
    _told(KorvaneSettings::setUploadsOverCellular(allowed));
}

void Settings::_told(bool isWritten) {
    _problem = isWritten ? QString() : tr("The setting could not be written. It holds until this window is closed.");
    Q_EMIT changed();
}

} // namespace korvane
