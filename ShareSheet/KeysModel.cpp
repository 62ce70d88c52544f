// The keys of the user's own application at one service.
#include "ShareSheet/KeysModel.h"

#include "Platform/Accounts/CredentialStore.h"
#include "Platform/Foundation/Folders.h"
#include "ShareSheet/Background.h"

namespace korvane {

KeysModel::KeysModel(ACAccountType type, QObject *parent)
    : QObject(parent), _type(std::move(type)), _watch(configFolder() + QStringLiteral("/application-keys.json")) {
    connect(&_watch, &FileWatch::changed, this, [this] {
        if (!_isBusy) _problem.clear();
        _look();
    });
    _begin();
    _look();
}

void KeysModel::_look() {
    inBackground(this, [this, type = _type]() -> std::function<void()> {
        std::optional<NSError> error;
        const auto keys = ApplicationKeys::stored(type, &error);
        const bool areInFile = ApplicationKeys::placeOfStored(type) == SecretPlace::File;
        return [this, keys, areInFile, error] {
            _keys = keys;
            _areInFile = areInFile;
            _isBusy = false;
            if (error) _problem = error->localizedDescription();
            Q_EMIT changed();
        };
    });
}

void KeysModel::store(const QString &consumerKey, const QString &consumerSecret) {
    const ApplicationKeys keys{consumerKey.trimmed(), consumerSecret.trimmed()};
    _problem = keys.problem();
    if (!_problem.isEmpty()) return Q_EMIT changed();
    _change([keys, type = _type](std::optional<NSError> *error) { return keys.store(type, error); },
            [this] { Q_EMIT stored(); });
}

void KeysModel::remove() {
    _change([type = _type](std::optional<NSError> *error) { return ApplicationKeys::remove(type, error); }, [] {});
}

void KeysModel::_change(std::function<bool(std::optional<NSError> *error)> work, std::function<void()> then) {
    _begin();
    inBackground(this, [this, work = std::move(work), then = std::move(then)]() -> std::function<void()> {
        std::optional<NSError> error;
        const bool isDone = work(&error);
        return [this, isDone, error, then] {
            if (isDone)
                then();
            else
                _problem = error->localizedDescription();
            _look();
        };
    });
}

void KeysModel::_begin() {
    _isBusy = true;
    _problem.clear();
    Q_EMIT changed();
}

} // namespace korvane
