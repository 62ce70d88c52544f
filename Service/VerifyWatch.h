// What the verifies of a video's chunks say about going on.
#pragma once

#include "Service/Verdict.h"

namespace korvane {

// The upload believes whatever it is told: it takes a refused verify for an empty endpoint, commits a video of which
// too much is reported, and sends the same range again and again where nothing is stored. Somebody has to notice.
class VerifyWatch {
public:
    // Bytes that an earlier run had confirmed.
    explicit VerifyWatch(quint64 bytesStored = 0) : _last(bytesStored), _most(bytesStored) {}

    // Of one more verify, which reported bytesStored of a video of size bytes. Null where the upload may go on.
    std::optional<Verdict> objection(const UploadContext::Snapshot &request, quint64 bytesStored, quint64 size);

private:
    bool _getsOn(quint64 bytesStored);

    quint64 _last;
    quint64 _most;
    int _withoutAdvance = 0;    // over the verify before
    quint64 _withoutRecord = 0; // over all verifies
};

} // namespace korvane
