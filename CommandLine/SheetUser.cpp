// What a person does in front of a share sheet.
#include "CommandLine/SheetUser.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/FlickrSheet.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Accounts/ACError.h"
#include "Platform/Social/RemoteServiceError.h"

namespace korvane {
namespace {

// False, after saying why, where the sheet has no account of that type.
bool opens(SLComposeServiceViewController &sheet, const std::shared_ptr<ACAccount> &account,
           const QString &accountType) {
    sheet.appear();
    if (account && !sheet.settingsAlert()) return true;
    const ACAccountType type(accountType);
    std::optional<NSError> error;
    ACAccountStore().accountsWithAccountType(type, &error);
    const bool isReadable = !error || error->domain() == ACErrorDomain; // which tells of damage; a new account ends it
    if (error)
        Output::problem((isReadable ? QString() : QStringLiteral("The list of accounts cannot be read. ")) +
                        error->localizedDescription());
    if (isReadable)
        Output::problem(QStringLiteral("There is no %1 account yet. Add one with:").arg(Arguments::serviceOf(type)),
                        {QStringLiteral("  korvane accounts add %1").arg(Arguments::serviceOf(type))});
    return false;
}

} // namespace

std::shared_ptr<FlickrComposeViewController> SheetUser::opensFlickrSheet(std::vector<SLAttachment> attachments) {
    const auto sheet = makeFlickrSheet();
    sheet->setAttachments(std::move(attachments));
    return opens(*sheet, sheet->flickrAccount(), ACAccountTypeIdentifierFlickr) ? sheet : nullptr;
}

// The sheet itself does not tell a missing credential from a missing account.
std::shared_ptr<VimeoComposeViewController> SheetUser::opensVimeoSheet(const SLAttachment &attachment) {
    const auto sheet = VimeoComposeViewController::initWithNibName();
    sheet->setAttachments({attachment});
    if (sheet->vimeoAccount() && !hasCredential(*sheet->vimeoAccount())) return nullptr;
    return opens(*sheet, sheet->vimeoAccount(), ACAccountTypeIdentifierVimeo) ? sheet : nullptr;
}

bool SheetUser::hasCredential(const ACAccount &account) {
    std::optional<NSError> error;
    if (account.credential(&error)) return true;
    Output::problem(QStringLiteral("The credential of the %1 account of %2 cannot be used. ")
                        .arg(Arguments::serviceOf(account.accountType()), account.username()) +
                    error->localizedDescription());
    return false;
}

void SheetUser::saysAccount(const ACAccount &account) {
    const auto count = ACAccountStore().accountsWithAccountType(account.accountType()).size();
    if (count > 1)
        Output::note(QStringLiteral("Sharing as %1, the one in use of %2 %3 accounts.")
                         .arg(account.username(), QString::number(count), Arguments::serviceOf(account.accountType())));
}

bool SheetUser::types(const std::shared_ptr<UITextView> &textView, const QString &text) {
    return textView->userReplacesText({0, textView->text().size()}, text);
}

std::shared_ptr<UITableViewController> SheetUser::opensOption(SLComposeServiceViewController &sheet, size_t item) {
    sheet.shownConfigurationItems().at(item)->tapHandler()();
    return std::dynamic_pointer_cast<UITableViewController>(sheet.configurationViewController());
}

void SheetUser::leavesOption(SLComposeServiceViewController &sheet) {
    sheet.popConfigurationViewController();
}

QStringList SheetUser::reads(const SLComposeServiceViewController &sheet) {
    QStringList rows;
    for (const auto &item : sheet.shownConfigurationItems())
        rows.append(item->title().value_or(QString()) + QStringLiteral(": ") + item->value().value_or(QString()));
    return rows;
}

void SheetUser::chooses(const UITableViewController &screen, NSIndexPath indexPath) {
    looksAt(screen, indexPath);
    screen.tableView()->userSelectsRow(indexPath);
}

std::shared_ptr<UITableViewCell> SheetUser::looksAt(const UITableViewController &screen, NSIndexPath indexPath) {
    screen.tableView()->scrollToRowAtIndexPath(indexPath, UITableViewScrollPositionNone, false);
    return screen.tableView()->cellForRowAtIndexPath(indexPath);
}

std::optional<int> SheetUser::posts(SLComposeServiceViewController &sheet) {
    sheet.userTapsPost();
    const auto &context = *sheet.extensionContext();
    if (context.state() == NSExtensionContext::State::Completed) return std::nullopt;
    if (context.state() == NSExtensionContext::State::Open) {
        Output::problem(QStringLiteral("Nothing was shared. The share sheet does not take what it was given."));
        return ExitUsage;
    }
    const NSError reason =
        context.error().value_or(NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable,
                                                               QStringLiteral("The upload service gave no reason.")));
    const bool mayBeShared =
        reason.domain() == RemoteServiceErrorDomain && reason.code() == RemoteServiceErrorUnknownEnd;
    Output::problem((mayBeShared ? QString() : QStringLiteral("Nothing was shared. ")) + reason.localizedDescription());
    return exitStatusOf(reason);
}

} // namespace korvane
