// Korvane's own settings.
#include "Platform/Preferences/KorvaneSettings.h"

#include "Platform/Preferences/LogOnce.h"
#include "Platform/Preferences/PreferenceDomain.h"

#include <QUrl>

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

QVariant preference(const char *key) {
    return PreferenceDomain::domainWithName(QStringLiteral("com.zorvex.korvane"))
        ->currentValue(QString::fromLatin1(key));
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

int number(const char *key, int least, int most, int usual) {
    const QVariant value = preference(key);
    if (!value.isValid()) return usual;
    bool readable = value.typeId() != QMetaType::Bool;
    const double wanted = readable ? value.toDouble(&readable) : 0;
    if (readable) return int(std::clamp<double>(wanted, least, most));
    logOnce(QStringLiteral("The preference %1 is ignored: it is not a number.").arg(QLatin1String(key)));
    return usual;
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
    return number("FlickrParallelUploads", 1, 16, 3);
}

int KorvaneSettings::vimeoParallelUploads() {
    return number("VimeoParallelUploads", 1, 4, 1);
}

int KorvaneSettings::displayImageMaxPixels() {
    return number("DisplayImageMaxPixels", 0, std::numeric_limits<int>::max(), 0);
}

bool KorvaneSettings::uploadsOverCellular() {
    const QVariant value = preference("UploadsOverCellular");
    if (value.isValid() && value.typeId() != QMetaType::Bool)
        logOnce(QStringLiteral("The preference UploadsOverCellular is ignored: it is neither true nor false."));
    return value.typeId() != QMetaType::Bool || value.toBool();
}

} // namespace korvane
