// A sign-in that a person makes from the terminal, or a script for them.
#pragma once

#include "CommandLine/LineInput.h"
#include "Platform/Accounts/SignIn.h"

#include <QEventLoop>

namespace korvane {

// Asks for the application's keys where none are stored, shows the service's page, and waits. What it says goes to
// standard error, secrets nowhere.
class AccountSignIn {
public:
    struct Options {
        bool opensBrowser = true;                // false: the person types the code that the page shows
        std::optional<QString> consumerKey = {}; // in place of a stored one
    };

    AccountSignIn(ACAccountType type, Options options);

    // Blocks; once. Keys that were not stored before are stored if they were good. Null, after saying why, with the
    // exit status placed.
    std::optional<SignedInAccount> run(int *status);

private:
    void _findKeys();
    void _askForKey();
    void _askForSecret();
    void _start();
    void _showPage(const QString &page);
    void _askForCode();
    void _ended(const std::optional<NSError> &error);
    void _storeKeys();
    void _leave(int status);
    void _interrupted(int signal);

    const ACAccountType _type;
    const Options _options;
    const QString _service; // its name for people
    LineInput _input;
    QEventLoop _loop;
    ApplicationKeys _keys;
    bool _keysAreNew = false;
    std::shared_ptr<SignIn> _signIn;
    std::optional<SignedInAccount> _account;
    std::optional<int> _status;
};

} // namespace korvane
