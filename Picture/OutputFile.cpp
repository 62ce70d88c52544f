// Where the encoded picture goes.
#include "Picture/OutputFile.h"

#include <unistd.h>

#include <cerrno>

namespace korvane {

OutputFile::OutputFile(int descriptor) : _target(VIPS_TARGET(vips_target_custom_new())), _descriptor(descriptor) {
    g_signal_connect(_target.get_target(), "write", G_CALLBACK(_write), this);
}

gint64 OutputFile::_write(VipsTargetCustom *, const void *bytes, gint64 length, void *self) {
    auto *output = static_cast<OutputFile *>(self);
    ssize_t count;
    do {
        count = ::write(output->_descriptor, bytes, size_t(length));
    } while (count < 0 && errno == EINTR);
    if (count < 0) output->_error = errno;
    return count;
}

} // namespace korvane
