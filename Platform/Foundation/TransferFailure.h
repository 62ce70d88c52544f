// Why a request brought no answer.
#pragma once

#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <curl/curl.h>

namespace korvane {

// Errors of NSURLErrorDomain; their descriptions are whole sentences.
namespace TransferFailure {

NSError make(qint64 code, const QString &text);
NSError tooLarge();
// What curl says of a request to url. osError: the errno that it saw, or 0.
NSError ofCurl(CURLcode code, long osError, const NSURL &url);

} // namespace TransferFailure

} // namespace korvane
