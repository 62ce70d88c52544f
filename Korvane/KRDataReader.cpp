// Reads a file by ranges.
#include "Korvane/KRDataReader.h"

namespace korvane {

std::shared_ptr<KRDataReader> KRDataReader::dataReaderWithURL(const std::optional<NSURL> &url,
                                                              std::optional<NSError> *error) {
    if (!url) return nullptr;
    const auto reader = std::make_shared<KRDataReader>();
    reader->URL = url;
    return reader->_openFileIfNeededWithError(error) ? reader : nullptr;
}

bool KRDataReader::_openFileIfNeededWithError(std::optional<NSError> *error) {
    if (readHandle) return true;
    readHandle = URL ? NSFileHandle::fileHandleForReadingFromURL(*URL, error) : nullptr;
    return readHandle != nullptr;
}

quint64 KRDataReader::length() {
    if (!_openFileIfNeededWithError(nullptr)) return 0;
    const quint64 position = readHandle->offsetInFile();
    const quint64 length = readHandle->seekToEndOfFile();
    readHandle->seekToFileOffset(position);
    return length;
}

std::optional<NSData> KRDataReader::dataWithRange(quint64 location, quint64 length) {
    if (!_openFileIfNeededWithError(nullptr)) return std::nullopt;
    readHandle->seekToFileOffset(location);
    return readHandle->readDataOfLength(length);
}

} // namespace korvane
