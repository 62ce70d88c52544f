// korvane accounts: the accounts that photos are shared with.
#include "CommandLine/AccountsCommand.h"

#include "CommandLine/AccountSignIn.h"
#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Accounts/ACCredentialFile.h"
#include "Platform/Accounts/ACError.h"
#include "Platform/Foundation/FileDescriptor.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

namespace korvane {
namespace {

const char *const examples = R"(Examples:
  korvane accounts
  korvane accounts add flickr
  korvane accounts add vimeo --no-browser
  pass show flickr | korvane accounts add flickr --credential-file -
  korvane accounts remove ID

Secrets are kept in the desktop's keyring, or in a file that only you can read where there is no keyring. Of several
accounts of a service, the one that signed in last is used, or the one chosen since in the settings; the list marks it.

Exit status: 0 all well, 1 the account cannot be signed in or stored, 2 bad usage, an unusable file or no such account,
130 after Ctrl-C.)";

const char *const signIn =
    R"(Signs you in: opens the service's page in your browser, where you allow Korvane to use your account. With --no-browser
it only says where the page is, which may be opened anywhere, and takes the code that it shows on standard input.

That needs an application key of your own, which the service gives away at
  https://www.flickr.com/services/apps/create/ or https://developer.vimeo.com/apps
It is asked for the first time, or given with --consumer-key; the secret that belongs to it then comes from the
environment (KORVANE_CONSUMER_SECRET), or from standard input, before the code. Both are kept for the next time.

--credential-file stores an account that was signed in elsewhere, from a JSON object:
  {"username": "…", "consumerKey": "…", "consumerSecret": "…", "token": "…", "tokenSecret": "…"})";

std::vector<std::shared_ptr<ACAccount>> allAccounts(std::optional<NSError> *error) {
    const ACAccountStore store;
    std::vector<std::shared_ptr<ACAccount>> all;
    for (const QString &type : {ACAccountTypeIdentifierFlickr, ACAccountTypeIdentifierVimeo})
        for (const auto &account : store.accountsWithAccountType(ACAccountType(type), error))
            all.push_back(account);
    return all;
}

// Posts of its service go out with it.
bool isInUse(const ACAccount &account) {
    const auto used = ACAccountStore().accountInUse(account.accountType().identifier());
    return used && used->identifier() == account.identifier();
}

QJsonObject jsonOf(const ACAccount &account) {
    return {{QStringLiteral("id"), account.identifier()},
            {QStringLiteral("service"), Arguments::serviceOf(account.accountType())},
            {QStringLiteral("username"), account.username()},
            {QStringLiteral("inUse"), isInUse(account)}};
}

// Pipes are taken as well as files; a byte more than the largest credential file, so that a larger one is told.
std::optional<NSData> readFile(const std::string &path, std::optional<NSError> *error) {
    const bool isStandardInput = path == "-";
    const FileDescriptor file = isStandardInput ? FileDescriptor::duplicate(STDIN_FILENO)
                                                : FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    QByteArray bytes(ACCredentialFile::mostBytes + 1, Qt::Uninitialized);
    qint64 count = 0;
    for (ssize_t part = file ? 1 : -1; part != 0 && count < bytes.size();) {
        if (file) part = ::read(file.get(), bytes.data() + count, size_t(bytes.size() - count));
        if (part < 0 && file && errno == EINTR) continue;
        if (part < 0) {
            setError(error, NSError::errorWithErrno(errno, isStandardInput ? QStringLiteral("standard input")
                                                                           : QString::fromStdString(path)));
            return std::nullopt;
        }
        count += part;
    }
    return NSData(bytes.left(count));
}

int fail(const std::optional<NSError> &error, ExitStatus status) {
    Output::problem(error->localizedDescription());
    return status;
}

} // namespace

AccountsCommand::AccountsCommand(CLI::App &program) {
    _accounts = program.add_subcommand("accounts", "Show, add and remove accounts");
    _accounts->require_subcommand(0, 1);
    _accounts->add_flag("--json", _json, "Print JSON");
    _accounts->footer(examples);
    _accounts->add_subcommand("list", "All accounts (as without a command)")->fallthrough();
    _addApp = _accounts->add_subcommand("add", "Sign in with an account, also with a present one anew");
    _addApp->fallthrough()->require_subcommand(1);
    _addFlickr = _addApp->add_subcommand("flickr", "Add a Flickr account");
    CLI::App *addVimeo = _addApp->add_subcommand("vimeo", "Add a Vimeo account");
    for (CLI::App *add : {_addFlickr, addVimeo}) {
        auto *noBrowser = add->add_flag("--no-browser", _noBrowser, "Open no browser; take the page's code instead");
        auto *key = add->add_option("--consumer-key", _consumerKey, "Key of your application, in place of a stored one")
                        ->type_name("KEY");
        add->add_option("--credential-file", _credentialFile, "File with ready credentials, - for standard input")
            ->type_name("FILE")
            ->excludes(noBrowser)
            ->excludes(key);
        add->fallthrough();
        add->footer(signIn);
    }
    _removeApp = _accounts->add_subcommand("remove", "Remove an account with its credentials");
    _removeApp->fallthrough();
    _removeApp->add_option("ID", _id, "The account, as the list names it")
        ->required()
        ->type_name("")
        ->check(Arguments::problemWithText);
}

bool AccountsCommand::isChosen() const {
    return _accounts->parsed();
}

int AccountsCommand::run() {
    if (_addApp->parsed())
        return _add(_addFlickr->parsed() ? ACAccountTypeIdentifierFlickr : ACAccountTypeIdentifierVimeo);
    return _removeApp->parsed() ? _remove() : _list();
}

int AccountsCommand::_list() {
    std::optional<NSError> error;
    const auto accounts = allAccounts(&error);
    if (error && error->domain() != ACErrorDomain) return fail(error, ExitUploadFailed);
    if (error) Output::problem(error->localizedDescription()); // a damaged list counts as empty
    if (_json) {
        QJsonArray array;
        for (const auto &account : accounts)
            array.append(jsonOf(*account));
        Output::raw(QJsonDocument(array).toJson());
        return ExitDone;
    }
    if (accounts.empty()) {
        Output::line(QStringLiteral("No accounts. Add one with: korvane accounts add flickr"));
        return ExitDone;
    }
    Output::line(UploadText::padded(QStringLiteral("ID"), 38) + UploadText::padded(QStringLiteral("SERVICE"), 9) +
                 QStringLiteral("USER NAME"));
    for (const auto &account : accounts)
        Output::line(UploadText::padded(account->identifier(), 37) + u' ' +
                     UploadText::padded(Arguments::serviceOf(account->accountType()), 8) + u' ' + account->username() +
                     (isInUse(*account) ? QStringLiteral(" (in use)") : QString()));
    return ExitDone;
}

int AccountsCommand::_add(const QString &typeIdentifier) {
    const ACAccountType type(typeIdentifier);
    int status = ExitDone;
    const auto ready = _credentialFile.empty() ? _signIn(type, &status) : _readCredential(type, &status);
    if (!ready) return status;
    std::optional<NSError> error;
    const auto account = ready->save(&error);
    if (!account) return fail(error, ExitUploadFailed);
    if (_json)
        Output::raw(QJsonDocument(jsonOf(*account)).toJson());
    else
        Output::line(
            QStringLiteral("The %1 account of %2 is ready. Its id: %3")
                .arg(Arguments::serviceOf(account->accountType()), account->username(), account->identifier()));
    return ExitDone;
}

std::optional<SignedInAccount> AccountsCommand::_signIn(const ACAccountType &type, int *status) const {
    AccountSignIn::Options options{.opensBrowser = !_noBrowser};
    if (!_consumerKey.empty()) options.consumerKey = QString::fromStdString(_consumerKey);
    return AccountSignIn(type, std::move(options)).run(status);
}

std::optional<SignedInAccount> AccountsCommand::_readCredential(const ACAccountType &type, int *status) const {
    std::optional<NSError> error;
    const auto data = readFile(_credentialFile, &error);
    const auto file = data ? ACCredentialFile::credentialFileWithData(*data, &error) : std::nullopt;
    if (file) return SignedInAccount{type, file->username, file->credential};
    *status = fail(error, ExitUsage);
    return std::nullopt;
}

int AccountsCommand::_remove() {
    std::optional<NSError> error;
    ACAccountStore store;
    const QString id = QString::fromStdString(_id);
    const auto account = store.accountWithIdentifier(id);
    if (!store.removeAccount(id, &error)) {
        const bool isMissing = error->domain() == ACErrorDomain && error->code() == ACErrorAccountMissing;
        return fail(error, isMissing ? ExitUsage : ExitUploadFailed);
    }
    if (_json)
        Output::raw(account ? QJsonDocument(jsonOf(*account)).toJson() : QByteArray("{}\n"));
    else
        Output::line(QStringLiteral("Account %1 is removed.").arg(id));
    return ExitDone;
}

} // namespace korvane
