// Idle curl handles with their open connections, kept by origin.
#pragma once

#include "Platform/Foundation/CurlLibrary.h"

#include <QString>

#include <memory>

namespace korvane {

// One transfer at a time, once curl is loaded; the multi handle owns the connection that is kept for the next one.
struct CurlHandle {
    CurlHandle();
    ~CurlHandle();
    CurlHandle(const CurlHandle &) = delete;
    CurlHandle &operator=(const CurlHandle &) = delete;

    CURLM *multi;
    CURL *easy;
};

namespace CurlPool {

// The handle of the origin that was used last, else a new one. Thread: any.
std::unique_ptr<CurlHandle> take(const QString &origin);
// Keeps the handle for the next transfer to the origin; of many idle ones the oldest are closed.
void giveBack(const QString &origin, std::unique_ptr<CurlHandle> handle);

} // namespace CurlPool

} // namespace korvane
