// The upload service's session: the account store, and the power assertion that keeps the device awake.
#pragma once

#include "Platform/Social/RemoteServiceSession.h"

#include <memory>

namespace korvane {

class ACAccountStore;

// Seconds until an assertion that nobody renews runs out.
inline constexpr int kKRPowerAssertionDuration = 600;

class KRRemoteSession : public RemoteServiceSession {
public:
    KRRemoteSession(const QString &serviceName, const NSXPCInterface &interface)
        : RemoteServiceSession(serviceName, interface) {}

    // Made on the first call, then always the same until it is replaced.
    std::shared_ptr<ACAccountStore> accountStore();
    void setAccountStore(std::shared_ptr<ACAccountStore> store) { _accountStore = std::move(store); }

    // One assertion a process, counted. Thread: the main thread alone; there is no lock.
    // Every increment replaces the assertion by a fresh one and switches the progress indicator on.
    static void incrementPowerAssertion();
    // The last decrement lets the assertion go and switches the indicator off. One too many stops the process.
    static void decrementPowerAssertion();
    // Renews an assertion older than 300 seconds. Called at shorter intervals, it keeps the device awake without gaps.
    static void refreshPowerAssertion();

    // Replaces the clock (seconds since an arbitrary start); an empty function restores it. For tests.
    static void setClock(std::function<double()> clock);

private:
    std::shared_ptr<ACAccountStore> _accountStore;
};

} // namespace korvane
