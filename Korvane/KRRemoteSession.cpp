// The upload service's session: the account store, and the power assertion that keeps the device awake.
#include "Korvane/KRRemoteSession.h"

#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Power/PowerAssertion.h"
#include "Platform/Power/SystemProgressIndicator.h"

#include <chrono>
#include <optional>

namespace korvane {
namespace {

constexpr double renewAfterSeconds = 300.0;
constexpr int indicatorArgument = 1800;

quint64 powerAssertionRetainCount = 0;
std::shared_ptr<PowerAssertion> powerAssertion;
std::optional<double> powerAssertionStartDate;
std::function<double()> clockOverride;

double now() {
    if (clockOverride) return clockOverride();
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

std::shared_ptr<ACAccountStore> KRRemoteSession::accountStore() {
    if (!_accountStore) _accountStore = std::make_shared<ACAccountStore>();
    return _accountStore;
}

void KRRemoteSession::incrementPowerAssertion() {
    KRAssert(powerAssertionRetainCount > 0 || powerAssertion == nullptr,
             "_powerAssertionRetainCount > 0 || _powerAssertion == NULL", "+[KRRemoteSession incrementPowerAssertion]",
             "Korvane/KRRemoteSession", 29);
    ++powerAssertionRetainCount;
    // Also a second holder gets a fresh assertion: this is how a refresh restarts the time-out.
    powerAssertion = nullptr;
    powerAssertion = PowerAssertionCreate(QStringLiteral("com.zorvex.korvane"), 600.0);
    powerAssertionStartDate = now();
    setSystemProgressIndicator(true, indicatorArgument);
}

void KRRemoteSession::decrementPowerAssertion() {
    KRAssert(powerAssertionRetainCount > 0, "_powerAssertionRetainCount > 0",
             "+[KRRemoteSession decrementPowerAssertion]", "Korvane/KRRemoteSession", 41);
    if (--powerAssertionRetainCount > 0) return;
    powerAssertion = nullptr;
    powerAssertionStartDate = std::nullopt;
    setSystemProgressIndicator(false, indicatorArgument);
}

void KRRemoteSession::refreshPowerAssertion() {
    if (!powerAssertionStartDate || now() - *powerAssertionStartDate <= renewAfterSeconds) return;
    incrementPowerAssertion();
    decrementPowerAssertion();
}

void KRRemoteSession::setClock(std::function<double()> clock) {
    clockOverride = std::move(clock);
}

} // namespace korvane
