#include "StandIn/Page.h"

#include "StandIn/PageCard.h"
#include "StandIn/StateJson.h"

#include <QCryptographicHash>

namespace standin {

namespace {

constexpr size_t MostShown = 300;

const char *const Style = R"css(
:root { color-scheme: light dark; --ground: #f5f5f7; --card: #fff; --ink: #1c1c21; --soft: #6a6a76; --line: #e3e3e9;
  --chip: #eef0f4; --accent: #c2185b; --empty: #e9eaf0; }
@media (prefers-color-scheme: dark) { :root { --ground: #15161a; --card: #1f2127; --ink: #ececf1; --soft: #9a9caa;
  --line: #31343d; --chip: #2b2e37; --accent: #ff7fab; --empty: #282b33; } }
* { box-sizing: border-box; }
body { margin: 0; background: var(--ground); color: var(--ink); font: 15px/1.45 system-ui, sans-serif; }
header, main { max-width: 1240px; margin: 0 auto; padding: 0 24px; }
header { padding-top: 36px; padding-bottom: 20px; display: flex; flex-wrap: wrap; gap: 4px 16px; align-items: baseline; }
h1 { font-size: 26px; letter-spacing: -.02em; margin: 0; }
h1 span { color: var(--accent); }
header p { margin: 0; color: var(--soft); }
nav { display: flex; flex-wrap: wrap; gap: 8px; width: 100%; margin-top: 12px; }
nav span { border: 1px solid var(--line); border-radius: 999px; padding: 3px 12px; font-size: 13px; background: var(--card); }
nav b { color: var(--accent); font-weight: 600; margin-left: 6px; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(250px, 1fr)); gap: 20px; padding-bottom: 48px; }
article { background: var(--card); border: 1px solid var(--line); border-radius: 14px; overflow: hidden;
  display: flex; flex-direction: column; }
article > a { display: block; text-decoration: none; aspect-ratio: 4 / 3; background: var(--empty); }
article img { width: 100%; height: 100%; object-fit: cover; display: block; }
.film { aspect-ratio: 4 / 3; background: #000; }
.film video { width: 100%; height: 100%; display: block; }
h3 { font-size: 18px; margin: 0 0 16px; }
article .blank { height: 100%; display: grid; place-items: center; color: var(--soft); font-size: 13px; }
.text { padding: 12px 16px 14px; display: flex; flex-direction: column; gap: 6px; flex: 1; }
h2 { font-size: 16px; margin: 0; overflow-wrap: anywhere; display: -webkit-box; -webkit-line-clamp: 3;
  -webkit-box-orient: vertical; overflow: hidden; }
h2.none { color: var(--soft); font-weight: 400; font-style: italic; }
.about { margin: 0; color: var(--soft); font-size: 14px; overflow-wrap: anywhere; max-height: 4.4em; overflow: hidden; }
.chips { display: flex; flex-wrap: wrap; gap: 6px; }
.chip { background: var(--chip); border-radius: 6px; padding: 1px 8px; font-size: 12.5px; overflow-wrap: anywhere; max-width: 100%; }
.who { color: var(--accent); font-weight: 600; }
.facts { margin: auto 0 0; padding-top: 4px; color: var(--soft); font-size: 12.5px; display: flex;
  justify-content: space-between; gap: 8px; flex-wrap: wrap; }
.welcome { background: var(--card); border: 1px dashed var(--line); border-radius: 14px; padding: 56px 24px; text-align: center; }
.welcome h2 { display: block; font-size: 20px; margin-bottom: 8px; }
.welcome p { color: var(--soft); margin: 6px 0; }
code { background: var(--chip); border-radius: 6px; padding: 3px 8px; font-size: 14px; }
)css";

// Looks for news every three seconds and swaps the content in, so that pictures on show do not flicker; a
// video that plays is left in peace.
const char *const Script = R"js(
let seen = document.body.dataset.revision;
setInterval(async () => {
  if (document.hidden) return;
  try {
    const now = (await (await fetch('/api/revision')).text()).trim();
    const playing = [...document.querySelectorAll('video')].some(video => !video.paused && !video.ended);
    if (now === seen || playing) return;
    const fresh = new DOMParser().parseFromString(await (await fetch('/')).text(), 'text/html');
    document.querySelector('header').replaceWith(fresh.querySelector('header'));
    document.querySelector('main').replaceWith(fresh.querySelector('main'));
    seen = now;
  } catch (stopped) { }
}, 3000);
)js";

QString textOf(const Photo &photo, const char *parameter) {
    return QString::fromUtf8(valueOf(photo.parameters, parameter));
}

QString audienceOf(const Photo &photo) {
    if (isSet(photo, "is_public")) return QStringLiteral("Public");
    const bool friends = isSet(photo, "is_friend");
    const bool family = isSet(photo, "is_family");
    if (friends && family) return QStringLiteral("Friends and family");
    return friends ? QStringLiteral("Friends") : family ? QStringLiteral("Family") : QStringLiteral("Only me");
}

QByteArray pictureOf(const Photo &photo, const QByteArray &title) {
    const QByteArray address = "/photos/" + QByteArray::number(photo.id);
    // Browsers do not show TIFF.
    const bool shown = !photo.path.isEmpty() && photo.imageType != "image/tiff";
    const QByteArray blank = photo.path.isEmpty() ? QByteArray("not kept") : photo.imageType;
    return "<a href=\"" + address + "\">" +
           (shown ? "<img loading=\"lazy\" src=\"" + address + "\" alt=\"" + title + "\">"
                  : "<div class=\"blank\">" + blank + "</div>") +
           "</a>";
}

QByteArray chipsOf(const Photo &photo, const std::map<qint64, QString> &albumTitles) {
    QByteArray chips = chipOf(audienceOf(photo), "who", {});
    if (isSet(photo, "hidden")) chips += chipOf(QStringLiteral("Hidden from searches"), {}, {});
    for (const qint64 album : photo.albums)
        chips += chipOf(QStringLiteral("in ") + albumTitles.at(album), {}, "Album");
    for (const QString &tag : tagsOf(valueOf(photo.parameters, "tags")))
        chips += chipOf(QLatin1Char('#') + tag, {}, "Tag");
    return chips;
}

QByteArray cardOf(const Photo &photo, const std::map<qint64, QString> &albumTitles) {
    const QString title = textOf(photo, "title");
    return htmlOf({.media = pictureOf(photo, escaped(title)),
                   .title = title,
                   .description = textOf(photo, "description"),
                   .chips = chipsOf(photo, albumTitles),
                   .bytes = photo.bytes,
                   .receivedAt = photo.receivedAt});
}

QByteArray playerOf(const Video &video) {
    if (video.path.isEmpty()) return "<div class=\"film\"><div class=\"blank\">not kept</div></div>";
    return "<div class=\"film\"><video controls preload=\"metadata\" src=\"/videos/" + QByteArray::number(video.id) +
           "\"></video></div>";
}

QByteArray cardOf(const Video &video) {
    const bool isPrivate = video.privacy == QLatin1String("nobody");
    QByteArray chips = chipOf(isPrivate ? QStringLiteral("Private") : QStringLiteral("Public"), "who", {});
    for (const QString &tag : video.tags)
        chips += chipOf(QLatin1Char('#') + tag, {}, "Tag");
    return htmlOf({.media = playerOf(video),
                   .title = video.title,
                   .description = video.description,
                   .chips = chips,
                   .bytes = video.bytesStored,
                   .receivedAt = video.committedAt});
}

QByteArray welcome() {
    return "<section class=\"welcome\"><h2>No photos yet</h2><p>Share one, and it shows up here:</p>"
           "<p><code>korvane share flickr photo.jpg</code></p><p><code>korvane share vimeo video.mp4</code></p>"
           "</section>";
}

QByteArray albumBar(const std::vector<Album> &albums) {
    QByteArray bar = "<nav>";
    for (const Album &album : albums) {
        if (album.photos.isEmpty()) continue;
        bar += "<span>" + escaped(album.title) + "<b>" + QByteArray::number(album.photos.size()) + "</b></span>";
    }
    return bar + "</nav>";
}

QByteArray countOf(size_t things, const QByteArray &kind) {
    const QByteArray number = QByteArray::number(qint64(things)) + ' ' + kind + (things == 1 ? "" : "s") + " received";
    return things > MostShown ? number + ", the newest " + QByteArray::number(qint64(MostShown)) + " shown" : number;
}

// The newest first.
template <typename Things, typename CardOf>
QByteArray gridOf(const Things &things, CardOf cardOfThing) {
    QByteArray cards;
    const size_t shown = std::min(things.size(), MostShown);
    for (auto thing = things.rbegin(); thing != things.rbegin() + std::ptrdiff_t(shown); ++thing)
        cards += cardOfThing(*thing);
    return things.empty() ? QByteArray() : "<div class=\"grid\">\n" + cards + "</div>";
}

QByteArray photosPart(const std::vector<Photo> &photos, const std::vector<Album> &albums) {
    std::map<qint64, QString> albumTitles;
    for (const Album &album : albums)
        albumTitles[album.id] = album.title;
    return gridOf(photos, [&](const Photo &photo) { return cardOf(photo, albumTitles); });
}

QByteArray videosPart(const VideoStore &store) {
    std::vector<Video> videos = store.videos();
    std::erase_if(videos, [](const Video &video) { return video.id == 0; });
    if (videos.empty()) return {};
    return "<h3>" + countOf(videos.size(), "video") + "</h3>" +
           gridOf(videos, [](const Video &video) { return cardOf(video); });
}

} // namespace

QByteArray page(const ServiceContext &context) {
    const qint64 revision = context.revision();
    const std::vector<Photo> photos = context.photos.photos();
    const std::vector<Album> albums = context.photos.albums();
    const QByteArray content = photosPart(photos, albums) + videosPart(context.videos);
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Korvane stand-in</title>"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"><style>" +
           QByteArray(Style) + "</style></head>\n<body data-revision=\"" + QByteArray::number(revision) +
           "\"><header><h1><span>Korvane</span> stand-in</h1><p>" + countOf(photos.size(), "photo") + "</p>" +
           albumBar(albums) + "</header>\n<main>" + (content.isEmpty() ? welcome() : content) + "</main><script>" +
           Script + "</script></body></html>\n";
}

QByteArray pagePolicy() {
    const QByteArray script = QCryptographicHash::hash(QByteArray(Script), QCryptographicHash::Sha256).toBase64();
    return "default-src 'none'; img-src 'self'; media-src 'self'; connect-src 'self'; style-src 'unsafe-inline'; "
           "script-src 'sha256-" +
           script + "'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
}

} // namespace standin
