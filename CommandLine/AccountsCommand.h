// korvane accounts: the accounts that photos are shared with.
#pragma once

#include "Platform/Accounts/ACAccountType.h"
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
    int _remove();

    CLI::App *_accounts = nullptr;
    CLI::App *_addApp = nullptr;
    CLI::App *_addFlickr = nullptr;
    CLI::App *_removeApp = nullptr;
    std::string _credentialFile;
    std::string _id;
    bool _json = false;
};

} // namespace korvane
