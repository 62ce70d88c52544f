// The state as JSON, for scripts; ids are strings, times are ISO 8601, sizes are bytes:
//   {"revision", "photos": […], "albums": […], "videos": […], "protocolErrors": [TEXT…]}
// A video is there from its ticket on:
//   {"ticketId", "videoId" ("" before the commit), "filename", "title", "description", "tags": […], "privacy" ("" until
//    set), "bytesStored", "totalBytes" (0 until a Content-Range told it), "bytesAnnounced" (to where the chunks reach
//    by their heads), "bytesReceived" (in all chunks together), "sha256" ("" before the commit and when bodies are not
//    kept), "createdAt", "committedAt" (null before), "endpointHits", "commits" (both count refused requests, too),
//    "operations": ["chunk", "verify", "complete", …] in the order of arrival, "chunks":
//    [{"start", "length", "received", "stored", "contentRange" (as it came, null without)}…]}
// A protocol error is a request that no correct client sends, and what is wrong with it.
#pragma once

#include "StandIn/Exchange.h"

#include <QStringList>

namespace standin {

// Reads the bytes of photos and videos whose SHA-256 is not known yet.
QByteArray stateJson(ServiceContext &context);

// Tags as Flickr reads them: separated by spaces, quotes keep words together.
QStringList tagsOf(const QByteArray &tags);

// A missing audience means everybody, the preset of the account there is.
bool isSet(const Photo &photo, const QByteArray &parameter);

} // namespace standin
