// Tells a video that is getting nowhere from one that is slow.
#pragma once

#include <QtGlobal>

namespace korvane {

// The upload sends the same range again and again to an endpoint that never reports more bytes; somebody has to notice.
class VerifyWatch {
public:
    // Bytes that an earlier run had confirmed.
    explicit VerifyWatch(quint64 bytesStored = 0) : _last(bytesStored), _most(bytesStored) {}

    // Of one more verify. False once 20 in a row have reported nothing new. Where an endpoint has lost what it had,
    // what is sent once more is not new, but it may take as many verifies as it has chunks to come back.
    bool heard(quint64 bytesStored);

private:
    quint64 _last;
    quint64 _most;
    int _withoutAdvance = 0;    // over the verify before
    quint64 _withoutRecord = 0; // over all verifies
};

} // namespace korvane
