// What a person does in front of a share sheet.
#include "CommandLine/SheetUser.h"

#include "CommandLine/SystemLog.h"

namespace korvane {

void SheetUser::opens(SLComposeServiceViewController &sheet) {
    sendLogToSystemLog();
    sheet.view();
    sheet.viewWillAppear(false);
    sheet.viewDidAppear(false);
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

void SheetUser::chooses(const UITableViewController &screen, NSIndexPath indexPath) {
    looksAt(screen, indexPath);
    screen.tableView()->userSelectsRow(indexPath);
}

std::shared_ptr<UITableViewCell> SheetUser::looksAt(const UITableViewController &screen, NSIndexPath indexPath) {
    screen.tableView()->scrollToRowAtIndexPath(indexPath, UITableViewScrollPositionNone, false);
    return screen.tableView()->cellForRowAtIndexPath(indexPath);
}

} // namespace korvane
