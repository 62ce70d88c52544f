// Keeps the machine from going to sleep while work is under way.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"

#include <QString>

#include <memory>

class QDBusPendingCall;

namespace korvane {

// Holds an inhibitor lock of logind (org.freedesktop.login1.Manager.Inhibit): against sleep and idling where the user
// may block them, else one that delays sleep. The lock is asked for without waiting and let go when the object is
// destroyed or the time is over. Where it is refused or there is no logind, that is logged once and nothing else
// changes. Thread: the main thread alone.
class PowerAssertion : public std::enable_shared_from_this<PowerAssertion> {
public:
    explicit PowerAssertion(QString identifier) : _identifier(std::move(identifier)) {}

    bool isHeld() const { return bool(_lock); }

private:
    friend std::shared_ptr<PowerAssertion> PowerAssertionCreate(const QString &identifier, double timeoutSeconds);
    void _ask(bool block);
    void _answered(const QDBusPendingCall &call, bool block);
    void _timeOut();

    const QString _identifier;
    FileDescriptor _lock; // logind holds the lock until every copy of this is closed
    bool _timedOut = false;
};

// The identifier is what lists of inhibitors show as the reason. A new assertion is needed to go on after the time-out.
std::shared_ptr<PowerAssertion> PowerAssertionCreate(const QString &identifier, double timeoutSeconds);

} // namespace korvane
