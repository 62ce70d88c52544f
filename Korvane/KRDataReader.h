// Reads a file by ranges.
#pragma once

#include "Platform/Foundation/NSFileHandle.h"
#include "Platform/Foundation/NSURL.h"

#include <memory>
#include <optional>

namespace korvane {

// Thread: one at a time.
class KRDataReader {
public:
    // Null for a null URL, with the error left alone; null with the file layer's error if the file cannot be opened.
    static std::shared_ptr<KRDataReader> dataReaderWithURL(const std::optional<NSURL> &url,
                                                           std::optional<NSError> *error = nullptr);

    std::optional<NSURL> URL;
    std::shared_ptr<NSFileHandle> readHandle; // opened on first need; the file closes with the last reference

    // Bytes in the file, measured anew at each call. Leaves the read position where it was. 0 if it cannot be opened.
    quint64 length();
    // Fewer bytes than asked for at the end of the file; null if it cannot be opened. The bytes are read when they are
    // used.
    std::optional<NSData> dataWithRange(quint64 location, quint64 length);

private:
    bool _openFileIfNeededWithError(std::optional<NSError> *error);
};

} // namespace korvane
