// The keys of the user's own application at one service.
#include "ShareSheet/KeysModel.h"

#include "ShareSheet/Background.h"

namespace korvane {

KeysModel::KeysModel(ACAccountType type, QObject *parent) : QObject(parent), _type(std::move(type)) {
    _begin();
    _look();
}

void KeysModel::_look() {
    inBackground(this, [this, type = _type]() -> std::function<void()> {
        std::optional<NSError> error;
        const auto keys = ApplicationKeys::stored(type, &error);
        return [this, keys, error] { _set(keys, error); };
    });
}

void KeysModel::store(const QString &consumerKey, const QString &consumerSecret) {
    const ApplicationKeys keys{consumerKey.trimmed(), consumerSecret.trimmed()};
    _problem = keys.problem();
    if (!_problem.isEmpty()) return Q_EMIT changed();
    _begin();
    inBackground(this, [this, keys, type = _type]() -> std::function<void()> {
        std::optional<NSError> error;
        const bool isStored = keys.store(type, &error);
        return [this, keys, isStored, error] {
            _set(isStored ? std::optional(keys) : _keys, error);
            if (isStored) Q_EMIT stored();
        };
    });
}

void KeysModel::remove() {
    _begin();
    inBackground(this, [this, type = _type]() -> std::function<void()> {
        std::optional<NSError> error;
        const bool isRemoved = ApplicationKeys::remove(type, &error);
        return [this, isRemoved, error] { _set(isRemoved ? std::nullopt : _keys, error); };
    });
}

void KeysModel::_begin() {
    _isBusy = true;
    _problem.clear();
    Q_EMIT changed();
}

void KeysModel::_set(const std::optional<ApplicationKeys> &keys, const std::optional<NSError> &error) {
    _keys = keys;
    _isBusy = false;
    _problem = error ? error->localizedDescription() : QString();
    Q_EMIT changed();
}

} // namespace korvane
