// Uploads in every state, for a picture of them.
#pragma once

#include "Tests/EndToEnd/ServiceHarness.h"

namespace korvane::screenshots {

// Of the real service: one photo is shared, one has failed, one waits, and one is under way for a while, like the
// video.
void shareInEveryState(test::ServiceHarness &service, const QByteArrayList &photos, const QString &video);

} // namespace korvane::screenshots
