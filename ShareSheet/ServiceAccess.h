// What a service's part of the settings shows: its accounts, the application's keys and the sign-in.
#pragma once

#include "ShareSheet/AccountsModel.h"
#include "ShareSheet/KeysModel.h"
#include "ShareSheet/SignInModel.h"

namespace korvane {

// Thread: main.
class ServiceAccess : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER _name CONSTANT)
    Q_PROPERTY(korvane::AccountsModel *accounts READ accounts CONSTANT)
    Q_PROPERTY(korvane::KeysModel *keys READ keys CONSTANT)
    Q_PROPERTY(korvane::SignInModel *signIn READ signIn CONSTANT)

public:
    // name: "Flickr" or "Vimeo".
    ServiceAccess(const ACAccountType &type, QString name, QObject *parent = nullptr)
        : QObject(parent), _name(std::move(name)), _accounts(type), _keys(type), _signIn(type) {
        connect(&_signIn, &SignInModel::accountAdded, &_accounts, &AccountsModel::reload);
    }

    AccountsModel *accounts() { return &_accounts; }
    KeysModel *keys() { return &_keys; }
    SignInModel *signIn() { return &_signIn; }

    // What a control is called where each service has one of its kind.
    Q_INVOKABLE QString named(const QString &text) const { return tr("%1: %2").arg(_name, text); }

    // Needs the application's keys. typesCode: the page shows a code to type, for a browser on another machine.
    Q_INVOKABLE void addAccount(bool typesCode) {
        if (_keys.keys()) _signIn.start(*_keys.keys(), typesCode);
    }

private:
    const QString _name;
    AccountsModel _accounts;
    KeysModel _keys;
    SignInModel _signIn;
};

} // namespace korvane
