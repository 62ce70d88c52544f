// The keys of the user's own application at one service.
#pragma once

#include "Platform/Accounts/ApplicationKeys.h"
#include "ShareSheet/FileWatch.h"

#include <QObject>

#include <functional>

namespace korvane {

// Follows what other programs do to them. The secret is never shown again. The keyring is waited for elsewhere. Thread:
// main.
class KeysModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString consumerKey READ consumerKey NOTIFY changed)
    Q_PROPERTY(bool areStored READ areStored NOTIFY changed)
    Q_PROPERTY(bool areInFile READ areInFile NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QString registrationAddress READ registrationAddress CONSTANT)

public:
    explicit KeysModel(ACAccountType type, QObject *parent = nullptr);

    QString consumerKey() const { return _keys ? _keys->consumerKey : QString(); }
    bool areStored() const { return _keys.has_value(); }
    bool areInFile() const { return _areInFile; } // for want of a keyring
    bool isBusy() const { return _isBusy; }       // looks, or stores
    QString problem() const { return _problem; }
    QString registrationAddress() const { return ApplicationKeys::registrationAddress(_type); }
    const std::optional<ApplicationKeys> &keys() const { return _keys; }

    // Spaces around the texts, as they come along with a copy, do not count.
    Q_INVOKABLE void store(const QString &consumerKey, const QString &consumerSecret);
    Q_INVOKABLE void remove();

Q_SIGNALS:
    void changed();
    void stored(); // just now

private:
    void _look();
    // Does something to the keys; `then` runs afterwards if it could be done.
    void _change(std::function<bool(std::optional<NSError> *error)> work, std::function<void()> then);
    void _begin();

    const ACAccountType _type;
    std::optional<ApplicationKeys> _keys;
    bool _areInFile = false;
    bool _isBusy = false;
    QString _problem;
    FileWatch _watch;
};

} // namespace korvane
