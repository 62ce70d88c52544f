// korvane accounts: the accounts that photos are shared with.
#include "CommandLine/AccountsCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "CommandLine/UploadText.h"
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
  korvane accounts add flickr --credential-file flickr.json
  pass show flickr | korvane accounts add flickr --credential-file -
  korvane accounts remove ID

The credential file is a JSON object:
  {"username": "…", "consumerKey": "…", "consumerSecret": "…", "token": "…", "tokenSecret": "…"}

Secrets are kept in the desktop's keyring, or in a file that only you can read where there is no keyring. Of several
accounts of a service, the one that was added last is used.

Exit status: 0 all well, 1 the account cannot be stored, 2 bad usage, an unusable file or no such account.)";

const char *const credentialsNeeded =
    "Ready credentials are needed for now: give --credential-file FILE (or - for standard input) with the JSON object\n"
    R"(  {"username": "…", "consumerKey": "…", "consumerSecret": "…", "token": "…", "tokenSecret": "…"})";

std::vector<std::shared_ptr<ACAccount>> allAccounts() {
    const ACAccountStore store;
    std::vector<std::shared_ptr<ACAccount>> all;
    for (const QString &type : {ACAccountTypeIdentifierFlickr, ACAccountTypeIdentifierVimeo})
        for (const auto &account : store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(type)))
            all.push_back(account);
    return all;
}

QJsonObject jsonOf(const ACAccount &account) {
    return {{QStringLiteral("id"), account.identifier()},
            {QStringLiteral("service"), Arguments::serviceOf(account.accountType())},
            {QStringLiteral("username"), account.username()}};
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
    _addApp = _accounts->add_subcommand("add", "Add an account, or give a present one new credentials");
    _addApp->fallthrough()->require_subcommand(1);
    _addFlickr = _addApp->add_subcommand("flickr", "Add a Flickr account");
    CLI::App *addVimeo = _addApp->add_subcommand("vimeo", "Add a Vimeo account");
    for (CLI::App *add : {_addFlickr, addVimeo}) {
        add->add_option("--credential-file", _credentialFile, "File with ready credentials, - for standard input")
            ->type_name("FILE");
        add->fallthrough();
        add->footer(credentialsNeeded);
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
    const auto accounts = allAccounts();
    if (_json) {
        QJsonArray array;
        for (const auto &account : accounts)
            array.append(jsonOf(*account));
        Output::raw(QJsonDocument(array).toJson());
        return ExitDone;
    }
    if (accounts.empty()) {
        Output::line(QStringLiteral("No accounts. Add one with: korvane accounts add flickr --credential-file FILE"));
        return ExitDone;
    }
    Output::line(UploadText::padded(QStringLiteral("ID"), 38) + UploadText::padded(QStringLiteral("SERVICE"), 9) +
                 QStringLiteral("USER NAME"));
    for (const auto &account : accounts)
        Output::line(UploadText::padded(account->identifier(), 37) + u' ' +
                     UploadText::padded(Arguments::serviceOf(account->accountType()), 8) + u' ' + account->username());
    return ExitDone;
}

int AccountsCommand::_add(const QString &typeIdentifier) {
    if (_credentialFile.empty()) {
        QStringList lines = QString::fromUtf8(credentialsNeeded).split(u'\n');
        Output::problem(lines.takeFirst(), lines);
        return ExitUsage;
    }
    std::optional<NSError> error;
    const auto data = readFile(_credentialFile, &error);
    const auto file = data ? ACCredentialFile::credentialFileWithData(*data, &error) : std::nullopt;
    if (!file) return fail(error, ExitUsage);
    ACAccountStore store;
    const auto account = store.saveAccount(store.accountTypeWithAccountTypeIdentifier(typeIdentifier), file->username,
                                           file->credential, &error);
    if (!account) return fail(error, ExitUploadFailed);
    if (_json)
        Output::raw(QJsonDocument(jsonOf(*account)).toJson());
    else
        Output::line(
            QStringLiteral("The %1 account of %2 is ready. Its id: %3")
                .arg(Arguments::serviceOf(account->accountType()), account->username(), account->identifier()));
    return ExitDone;
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
