// Where the encoded picture goes.
#pragma once

#include <vips/vips8>

namespace korvane {

// Hands what libvips encodes to a file descriptor and remembers a failure, so that it can be told from a damaged
// picture.
class OutputFile {
public:
    // The descriptor stays the caller's.
    explicit OutputFile(int descriptor);

    vips::VTarget &target() { return _target; }
    // The errno value of the write that failed, else 0.
    int error() const { return _error; }

private:
    static gint64 _write(VipsTargetCustom *target, const void *bytes, gint64 length, void *self);

    vips::VTarget _target;
    int _descriptor;
    int _error = 0;
};

} // namespace korvane
