// Tells what kind of picture some bytes are.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QString>

#include <optional>

namespace korvane {

class CGImageSource {
public:
    // Null for empty data.
    static std::optional<CGImageSource> createWithData(const NSData &data);

    // The type identifier, told by the contents; empty if they are no picture. That the rest can be decoded is not
    // said.
    QString type() const;

private:
    explicit CGImageSource(NSData data) : _data(std::move(data)) {}
    NSData _data;
};

} // namespace korvane
