// What the window program is asked to show.
#include "ShareSheet/SheetRequest.h"

namespace korvane {
namespace {

std::optional<SheetRequest::Page> serviceNamed(const QByteArray &name) {
    const QByteArray word = name.toLower();
    if (word == "flickr") return SheetRequest::Flickr;
    if (word == "vimeo") return SheetRequest::Vimeo;
    return std::nullopt;
}

} // namespace

std::optional<SheetRequest> SheetRequest::parse(const QByteArrayList &arguments, QString &problem) {
    const QByteArray word = arguments.value(0);
    const auto fail = [&](const QString &text) {
        problem = text;
        return std::nullopt;
    };
    if (word == "--help" || word == "-h") return SheetRequest{};
    if (word == "--version") return SheetRequest{Version, {}, {}};
    if (word == "--uploads") {
        if (arguments.size() > 1) return fail(QStringLiteral("--uploads takes nothing more"));
        return SheetRequest{Uploads, {}, {}};
    }
    if (word == "--settings") {
        const auto service = serviceNamed(arguments.value(1));
        if (arguments.size() > 2 || (arguments.size() == 2 && !service))
            return fail(QStringLiteral("--settings takes flickr or vimeo, and nothing more"));
        return SheetRequest{Settings, {}, service};
    }
    if (word.toLower().startsWith("prefs:")) {
        if (arguments.size() > 1) return fail(QStringLiteral("give one address of settings alone"));
        const QByteArray root = word.mid(word.indexOf('=') + 1).split('/')[0].split('&')[0]; // the rest has no page
        const auto service = serviceNamed(root);
        if (!service) problem = QStringLiteral("%1 has no settings of its own here").arg(QString::fromUtf8(root));
        return SheetRequest{Settings, {}, service};
    }
    const auto service = serviceNamed(word);
    if (!service) return fail(QStringLiteral("give flickr or vimeo, and the files to share"));
    QByteArrayList files = arguments.mid(1);
    if (files.value(0) == "--") files.removeFirst();
    if (files.isEmpty()) return fail(QStringLiteral("give the files to share"));
    return SheetRequest{*service, files, {}};
}

const char *SheetRequest::helpText() {
    return "Usage: korvane-sheet flickr FILE...        share photos to Flickr\n"
           "       korvane-sheet vimeo FILE            share a video to Vimeo\n"
           "       korvane-sheet --settings [flickr|vimeo]\n"
           "       korvane-sheet --uploads\n"
           "       korvane-sheet --version\n"
           "\n"
           "A FILE is a path or a file:// address.\n"
           "\n"
           "Exit status: 0 handed over to the upload service; 1 not shared, or something that has no status of its "
           "own;\n"
           "2 bad usage or no file that can be used; 3 no account; 4 the upload service cannot be reached, runs with\n"
           "other settings, or cannot take anything just now.\n";
}

} // namespace korvane
