// korvane accounts: the accounts that photos are shared with.
#pragma once

#include "Platform/Accounts/SignedInAccount.h"
#include "Platform/Foundation/NSError.h"

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace korvane {

class AccountsCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit AccountsCommand(CLI::App &program);
    bool isChosen() const;
    // Blocks; returns the exit status. Secrets are read here and never shown.
    int run();

private:
    int _list();
    int _add(const QString &typeIdentifier);
    // Null, after saying why, with the exit status placed.
    std::optional<SignedInAccount> _signIn(const ACAccountType &type, int *status) const;
    std::optional<SignedInAccount> _readCredential(const ACAccountType &type, int *status) const;
    int _remove();

    CLI::App *_accounts = nullptr;
    CLI::App *_addApp = nullptr;
    CLI::App *_addFlickr = nullptr;
    CLI::App *_removeApp = nullptr;
    bool _noBrowser = false;
    std::string _consumerKey;
    std::string _credentialFile;
    std::string _id;
    bool _json = false;
};

} // namespace korvane
