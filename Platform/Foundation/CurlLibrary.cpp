// libcurl, loaded with the first request.
#include "Platform/Foundation/CurlLibrary.h"

#include <dlfcn.h>

namespace korvane {
namespace {

constexpr const char *fileName = "libcurl.so.4";

struct Loaded {
    CurlLibrary functions;
    QString failure; // empty where there is none

    Loaded();

private:
    template <typename Function>
    void _find(void *library, const char *name, Function &function) {
        function = reinterpret_cast<Function>(::dlsym(library, name));
        if (!function && failure.isEmpty()) failure = QString::fromLocal8Bit(::dlerror());
    }
};

Loaded::Loaded() {
    void *const library = ::dlopen(fileName, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!library) {
        failure = QString::fromLocal8Bit(::dlerror());
        return;
    }
    _find(library, "curl_global_init", functions.global_init);
    _find(library, "curl_easy_init", functions.easy_init);
    _find(library, "curl_easy_cleanup", functions.easy_cleanup);
    _find(library, "curl_easy_reset", functions.easy_reset);
    _find(library, "curl_easy_setopt", functions.easy_setopt);
    _find(library, "curl_easy_getinfo", functions.easy_getinfo);
    _find(library, "curl_easy_strerror", functions.easy_strerror);
    _find(library, "curl_multi_init", functions.multi_init);
    _find(library, "curl_multi_cleanup", functions.multi_cleanup);
    _find(library, "curl_multi_setopt", functions.multi_setopt);
    _find(library, "curl_multi_add_handle", functions.multi_add_handle);
    _find(library, "curl_multi_remove_handle", functions.multi_remove_handle);
    _find(library, "curl_multi_perform", functions.multi_perform);
    _find(library, "curl_multi_poll", functions.multi_poll);
    _find(library, "curl_multi_wakeup", functions.multi_wakeup);
    _find(library, "curl_multi_info_read", functions.multi_info_read);
    _find(library, "curl_slist_append", functions.slist_append);
    _find(library, "curl_slist_free_all", functions.slist_free_all);
    if (failure.isEmpty() && functions.global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK)
        failure = QStringLiteral("libcurl cannot be set up");
}

const Loaded &loaded() {
    static const Loaded *const library = new Loaded; // sends may outlive static destruction
    return *library;
}

} // namespace

std::optional<NSError> CurlLibrary::problem() {
    const QString failure = loaded().failure;
    if (failure.isEmpty()) return std::nullopt;
    return NSError::errorWithDescription(
        NSURLErrorDomain, NSURLErrorUnknown,
        QStringLiteral("libcurl 4 is needed to reach the web service (%1).").arg(failure));
}

const CurlLibrary &curl() {
    return loaded().functions;
}

} // namespace korvane
