// How the queue keeps a post's record.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"

#include <QByteArray>
#include <QVariantMap>

#include <memory>

namespace korvane {

namespace RecordCodec {

// CBOR (RFC 8949). Data that is part of dataFile is kept as a reference to its range there, other data in full. Values
// that are of no property-list type are left out.
QByteArray encode(const QVariantMap &record, const std::shared_ptr<const FileDescriptor> &dataFile);

// The record again; references become data of the given file, or are left out where there is none.
QVariantMap decode(const QByteArray &bytes, const std::shared_ptr<const FileDescriptor> &dataFile);

} // namespace RecordCodec

} // namespace korvane
