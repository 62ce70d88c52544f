// libcurl, loaded with the first request.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <curl/curl.h>

#include <optional>

namespace korvane {

// It brings forty libraries along, for which a window that only collects what is shared, or a command that asks the
// upload service, would wait at its start. Each member is the function of that name with "curl_" before it.
struct CurlLibrary {
    decltype(&curl_global_init) global_init = nullptr;
    decltype(&curl_easy_init) easy_init = nullptr;
    decltype(&curl_easy_cleanup) easy_cleanup = nullptr;
    decltype(&curl_easy_reset) easy_reset = nullptr;
    decltype(&curl_easy_setopt) easy_setopt = nullptr;
    decltype(&curl_easy_getinfo) easy_getinfo = nullptr;
    decltype(&curl_easy_strerror) easy_strerror = nullptr;
    decltype(&curl_multi_init) multi_init = nullptr;
    decltype(&curl_multi_cleanup) multi_cleanup = nullptr;
    decltype(&curl_multi_setopt) multi_setopt = nullptr;
    decltype(&curl_multi_add_handle) multi_add_handle = nullptr;
    decltype(&curl_multi_remove_handle) multi_remove_handle = nullptr;
    decltype(&curl_multi_perform) multi_perform = nullptr;
    decltype(&curl_multi_poll) multi_poll = nullptr;
    decltype(&curl_multi_wakeup) multi_wakeup = nullptr;
    decltype(&curl_multi_info_read) multi_info_read = nullptr;
    decltype(&curl_slist_append) slist_append = nullptr;
    decltype(&curl_slist_free_all) slist_free_all = nullptr;

    // Null once it is loaded; else why it cannot be. Loads it. Thread: any.
    static std::optional<NSError> problem();
};

// Loaded and ready, after a problem() that is null. Thread: any.
const CurlLibrary &curl();

} // namespace korvane
