// Log lines that a process says only once.
#pragma once

#include <QString>

namespace korvane {

// Writes the message to the platform log unless this process wrote the same one before, or one of the same subject if
// there is a subject. Thread: any.
void logOnce(const QString &message, const QString &subject = {});

} // namespace korvane
