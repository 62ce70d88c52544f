// Secrets in the desktop's keyring.
#include "Platform/Accounts/SecretKeyring.h"

#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/SystemConfiguration/UserBus.h"

#include <libsecret/secret.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace korvane {

using SecretKeyring::Answer;
using SecretKeyring::Outcome;

namespace {

constexpr std::chrono::seconds timeLimit(5);

struct Unref {
    void operator()(void *object) const { g_object_unref(object); }
};
template <class T>
using Object = std::unique_ptr<T, Unref>;
using Attributes = std::unique_ptr<GHashTable, decltype(&g_hash_table_unref)>;
using Value = std::unique_ptr<SecretValue, void (*)(SecretValue *)>;

void forget(SecretValue *value) {
    secret_value_unref(value);
}

const SecretSchema &schema() {
    static const SecretSchema description = [] {
        SecretSchema made{};
        made.name = "com.zorvex.korvane.Account";
        made.attributes[0] = {"identifier", SECRET_SCHEMA_ATTRIBUTE_STRING};
        return made;
    }();
    return description;
}

Attributes attributesOf(const QString &identifier) {
    return {secret_attributes_build(&schema(), "identifier", identifier.toUtf8().constData(), nullptr),
            g_hash_table_unref};
}

Answer failure(Outcome outcome, GError *error) {
    const QString text = error ? QString::fromUtf8(error->message) : localizedText("the keyring gave no reason");
    g_clear_error(&error);
    return {outcome, text};
}

using Task = std::function<Answer(SecretService *, GCancellable *)>;

// Runs the task on a connection to the keyring made for it: the process-wide proxy would keep an old state of locks,
// and a dead bus, for good.
Answer connected(const Task &task, GCancellable *cancellable) {
    GError *error = nullptr;
    const Object<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, &error));
    if (!bus) return failure(Outcome::Unavailable, error);
    // GLib would end the process together with the bus.
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    const Object<SecretService> service(
        secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, cancellable, &error));
    if (!service) return failure(Outcome::Unavailable, error);
    return task(service.get(), cancellable);
}

Answer withOwnContext(const Task &task, GCancellable *cancellable) {
    // Signals of the bus stay out of the main thread's loop.
    const std::unique_ptr<GMainContext, decltype(&g_main_context_unref)> context(g_main_context_new(),
                                                                                 g_main_context_unref);
    g_main_context_push_thread_default(context.get());
    Answer answer = connected(task, cancellable);
    // What the connection's objects leave behind is freed by the loop.
    while (g_main_context_iteration(context.get(), FALSE))
        continue;
    g_main_context_pop_thread_default(context.get());
    return answer;
}

// Waits for the task on a pool thread; after the time limit it is cancelled and left to itself.
Answer limited(Task task) {
    if (!UserBus::isPresent()) return {Outcome::Unavailable, localizedText("there is no session bus")};
    struct Wait {
        std::mutex mutex;
        std::condition_variable ended;
        std::optional<Answer> answer;
        Object<GCancellable> cancellable{g_cancellable_new()};
    };
    const auto wait = std::make_shared<Wait>();
    dispatchGlobal([wait, task = std::move(task)] {
        Answer answer = withOwnContext(task, wait->cancellable.get());
        const std::lock_guard lock(wait->mutex);
        wait->answer = std::move(answer);
        wait->ended.notify_one();
    });
    std::unique_lock lock(wait->mutex);
    if (wait->ended.wait_for(lock, timeLimit, [&] { return wait->answer.has_value(); })) return *wait->answer;
    lock.unlock();
    g_cancellable_cancel(wait->cancellable.get());
    return {Outcome::Silent, localizedText("the keyring did not answer in time")};
}

Answer find(SecretService *service, const QString &identifier, GCancellable *cancellable) {
    GError *error = nullptr;
    GList *items = secret_service_search_sync(service, &schema(), attributesOf(identifier).get(),
                                              SECRET_SEARCH_LOAD_SECRETS, cancellable, &error);
    if (error) return failure(Outcome::Failed, error);
    if (!items) return {Outcome::Missing, localizedText("the keyring does not hold it")};
    auto *item = static_cast<SecretItem *>(items->data);
    const bool locked = secret_item_get_locked(item);
    const Value value(locked ? nullptr : secret_item_get_secret(item), forget);
    g_list_free_full(items, g_object_unref);
    if (locked) return {Outcome::Locked, localizedText("the keyring is locked")};
    const char *text = value ? secret_value_get_text(value.get()) : nullptr;
    if (!text) return {Outcome::Failed, localizedText("the keyring gave no text")};
    return {Outcome::Done, QString::fromUtf8(text)};
}

// Storing in a keyring that is locked or does not exist yet would make it ask the person.
Answer checkDefaultKeyring(SecretService *service, GCancellable *cancellable) {
    GError *error = nullptr;
    const Object<SecretCollection> keyring(secret_collection_for_alias_sync(
        service, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, cancellable, &error));
    if (error) return failure(Outcome::Unavailable, error);
    if (!keyring) return {Outcome::Unavailable, localizedText("there is no default keyring")};
    if (secret_collection_get_locked(keyring.get())) return {Outcome::Locked, localizedText("the keyring is locked")};
    return {Outcome::Done, {}};
}

} // namespace

Answer SecretKeyring::load(const QString &identifier) {
    return limited([identifier](SecretService *service, GCancellable *cancellable) {
        return find(service, identifier, cancellable);
    });
}

Answer SecretKeyring::store(const QString &identifier, const QString &label, const QString &secret) {
    return limited([=](SecretService *service, GCancellable *cancellable) {
        const Answer keyring = checkDefaultKeyring(service, cancellable);
        if (keyring.outcome != Outcome::Done) return keyring;
        const Value value(secret_value_new(secret.toUtf8().constData(), -1, "text/plain"), forget);
        GError *error = nullptr;
        if (!secret_service_store_sync(service, &schema(), attributesOf(identifier).get(), SECRET_COLLECTION_DEFAULT,
                                       label.toUtf8().constData(), value.get(), cancellable, &error))
            return failure(Outcome::Failed, error);
        return Answer{Outcome::Done, {}};
    });
}

Answer SecretKeyring::remove(const QString &identifier) {
    return limited([identifier](SecretService *service, GCancellable *cancellable) {
        const Answer found = find(service, identifier, cancellable);
        if (found.outcome == Outcome::Missing || found.outcome == Outcome::Locked) return found;
        GError *error = nullptr;
        if (!secret_service_clear_sync(service, &schema(), attributesOf(identifier).get(), cancellable, &error))
            return failure(Outcome::Failed, error);
        return Answer{Outcome::Done, {}};
    });
}

} // namespace korvane
