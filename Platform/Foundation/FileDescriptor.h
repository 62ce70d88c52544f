// An owned file descriptor.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace korvane {

// Closes its descriptor when destroyed. Moves, never copies; duplicate() makes a second owner that is close-on-exec.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : _descriptor(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        std::swap(_descriptor, other._descriptor);
        return *this;
    }
    ~FileDescriptor() { reset(); }

    int get() const { return _descriptor; }
    explicit operator bool() const { return _descriptor >= 0; }
    int release() { return std::exchange(_descriptor, -1); }
    void reset() {
        if (_descriptor >= 0) ::close(std::exchange(_descriptor, -1));
    }

    static FileDescriptor duplicate(int descriptor) { return FileDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, 3)); }

private:
    int _descriptor = -1;
};

} // namespace korvane
