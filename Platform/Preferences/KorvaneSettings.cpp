// Korvane's own settings.
#include "Platform/Preferences/KorvaneSettings.h"

#include "Platform/Preferences/LogOnce.h"
#include "Platform/Preferences/PreferenceDomain.h"

#include <QUrl>

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

constexpr const char *flickrParallelKey = "FlickrParallelUploads";
constexpr const char *vimeoParallelKey = "VimeoParallelUploads";
constexpr const char *pixelsKey = "DisplayImageMaxPixels";
constexpr const char *cellularKey = "UploadsOverCellular";

std::shared_ptr<PreferenceDomain> domain() {
    return PreferenceDomain::domainWithName(QStringLiteral("com.zorvex.korvane"));
}

QVariant preference(const char *key) {
    return domain()->currentValue(QLatin1String(key));
}

bool setPreference(const char *key, const QVariant &value) {
    domain()->setValue(QLatin1String(key), value);
    return domain()->synchronize();
}

// What makes the text unusable as a base URL; empty if nothing does.
QString problemWith(const std::optional<NSURL> &base) {
    if (!base || base->host().isEmpty()) return QStringLiteral("it is not a URL with a host");
    const QUrl url(base->absoluteString());
    const QString scheme = base->scheme().toLower();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return QStringLiteral("it must begin with https:// (or http:// for this machine)");
    if (!url.userInfo().isEmpty() || url.hasQuery() || url.hasFragment())
        return QStringLiteral("it must be a plain base address, without user name, query or fragment");
    if (scheme == QLatin1String("http") && !base->isLoopback())
        return QStringLiteral("plain http is only taken for this machine (localhost, 127.0.0.1, [::1]); use https");
    return {};
}

std::optional<NSURL> usableBase(const QVariant &value, const char *name, const char *place) {
    if (!value.isValid() || (value.typeId() == QMetaType::QString && value.toString().isEmpty())) return std::nullopt;
    QString text = value.typeId() == QMetaType::QString ? value.toString() : QString();
    while (text.endsWith(u'/'))
        text.chop(1);
    const auto base = NSURL::URLWithString(text);
    const QString problem =
        value.typeId() == QMetaType::QString ? problemWith(base) : QStringLiteral("it is not a text");
    if (problem.isEmpty()) return base;
    // The address itself is not shown: it may hold a password.
    logOnce(QStringLiteral("%1 of the %2 is ignored: %3.").arg(QLatin1String(name), QLatin1String(place), problem));
    return std::nullopt;
}

std::optional<NSURL> overrideNamed(const char *name) {
    const QVariant fromEnvironment = qEnvironmentVariableIsEmpty(name) ? QVariant() : qEnvironmentVariable(name);
    if (const auto base = usableBase(fromEnvironment, name, "environment")) return base;
    return usableBase(preference(name), name, "preferences");
}

QString hostOr(const std::optional<NSURL> &base, const char *usual) {
    return base ? base->absoluteString() : QString::fromLatin1(usual);
}

constexpr KorvaneSettings::Limits pixelLimits{0, std::numeric_limits<int>::max(), 0};

int number(const char *key, const KorvaneSettings::Limits &limits) {
    const QVariant value = preference(key);
    if (!value.isValid()) return limits.usual;
    bool readable = value.typeId() != QMetaType::Bool;
    const double wanted = readable ? value.toDouble(&readable) : 0;
    if (readable) return int(std::clamp<double>(wanted, limits.least, limits.most));
    logOnce(QStringLiteral("The preference %1 is ignored: it is not a number.").arg(QLatin1String(key)));
    return limits.usual;
}

bool setNumber(const char *key, int value, const KorvaneSettings::Limits &limits) {
    return setPreference(key, qint64(std::clamp(value, limits.least, limits.most)));
}

} // namespace

std::optional<NSURL> KorvaneSettings::flickrURL() {
    return overrideNamed("KORVANE_FLICKR_URL");
}

std::optional<NSURL> KorvaneSettings::vimeoURL() {
    return overrideNamed("KORVANE_VIMEO_URL");
}

QString KorvaneSettings::flickrUploadHost() {
    return hostOr(flickrURL(), "https://up.flickr.com");
}

QString KorvaneSettings::flickrRESTHost() {
    return hostOr(flickrURL(), "https://api.flickr.com");
}

QString KorvaneSettings::flickrSignInHost() {
    return hostOr(flickrURL(), "https://www.flickr.com");
}

QString KorvaneSettings::vimeoRESTHost() {
    return hostOr(vimeoURL(), "http://vimeo.com");
}

QString KorvaneSettings::vimeoSignInHost() {
    return hostOr(vimeoURL(), "https://vimeo.com");
}

int KorvaneSettings::flickrParallelUploads() {
    return number(flickrParallelKey, flickrParallelLimits);
}

int KorvaneSettings::vimeoParallelUploads() {
    return number(vimeoParallelKey, vimeoParallelLimits);
}

int KorvaneSettings::displayImageMaxPixels() {
    return number(pixelsKey, pixelLimits);
}

bool KorvaneSettings::uploadsOverCellular() {
    const QVariant value = preference(cellularKey);
    if (value.isValid() && value.typeId() != QMetaType::Bool)
        logOnce(QStringLiteral("The preference UploadsOverCellular is ignored: it is neither true nor false."));
    return value.typeId() != QMetaType::Bool || value.toBool();
}

bool KorvaneSettings::setFlickrParallelUploads(int count) {
    return setNumber(flickrParallelKey, count, flickrParallelLimits);
}

bool KorvaneSettings::setVimeoParallelUploads(int count) {
    return setNumber(vimeoParallelKey, count, vimeoParallelLimits);
}

bool KorvaneSettings::setDisplayImageMaxPixels(int pixels) {
    return setNumber(pixelsKey, pixels, pixelLimits);
}

bool KorvaneSettings::setUploadsOverCellular(bool allowed) {
    return setPreference(cellularKey, allowed);
}

QString KorvaneSettings::path() {
    return domain()->path();
}

} // namespace korvane
