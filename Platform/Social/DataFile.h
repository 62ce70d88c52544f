// The unnamed file in which the data of one hand-over travels.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <optional>

namespace korvane {

// Written by the client beside the service's spool, so that the service can give it a name instead of copying it.
class DataFile {
public:
    // Makes the file in the folder. Null, with the error placed, if it cannot be.
    static std::optional<DataFile> create(const QString &folder, std::optional<NSError> *error);

    // Appends the data at the next page boundary and returns its offset; null, with the error placed, if it cannot be
    // written whole or its source changed meanwhile. Within a file system that can, the bytes are shared instead of
    // copied.
    std::optional<qint64> append(const NSData &data, std::optional<NSError> *error);

    // The file, open for reading only; the writable descriptor is closed. Nothing may be appended afterwards.
    FileDescriptor finish(std::optional<NSError> *error);

private:
    explicit DataFile(FileDescriptor file) : _file(std::move(file)) {}
    FileDescriptor _file;
    qint64 _size = 0;
};

} // namespace korvane
