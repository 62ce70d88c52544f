// Hears SIGINT, SIGTERM and SIGHUP in the event loop while it lives.
#include "CommandLine/Interruption.h"

#include "Platform/Foundation/FileDescriptor.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>

#include <sys/eventfd.h>

namespace korvane {
namespace {

constexpr std::array heardSignals{SIGINT, SIGTERM, SIGHUP};
volatile std::sig_atomic_t wakeDescriptor = -1;

extern "C" void onSignal(int signal) {
    const quint64 value = quint64(signal);
    [[maybe_unused]] const ssize_t written = ::write(wakeDescriptor, &value, sizeof value);
}

} // namespace

// A handler and not a signal mask: threads of the bus connection run already and would take a masked signal.
struct Interruption::Private {
    FileDescriptor wake{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    QSocketNotifier notifier{wake.get(), QSocketNotifier::Read};
    std::array<struct sigaction, heardSignals.size()> before{};
};

Interruption::Interruption(std::function<void(int)> heard) : _private(std::make_unique<Private>()) {
    wakeDescriptor = _private->wake.get();
    QObject::connect(&_private->notifier, &QSocketNotifier::activated, [this, heard = std::move(heard)] {
        eventfd_t signal = 0;
        if (::eventfd_read(_private->wake.get(), &signal) == 0) heard(int(signal));
    });
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = int(SA_RESETHAND); // a second Ctrl-C ends a program that does not listen
    for (size_t i = 0; i < heardSignals.size(); ++i)
        ::sigaction(heardSignals[i], &action, &_private->before[i]);
}

Interruption::~Interruption() {
    for (size_t i = 0; i < heardSignals.size(); ++i)
        ::sigaction(heardSignals[i], &_private->before[i], nullptr);
    wakeDescriptor = -1;
}

} // namespace korvane
