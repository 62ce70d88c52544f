// What a person does in front of a share sheet, for a command that does it in their place.
#pragma once

#include "Platform/Social/SLComposeServiceViewController.h"
#include "Platform/UIKit/UITableViewController.h"

namespace korvane {

namespace SheetUser {

void opens(SLComposeServiceViewController &sheet);

// In place of what stands there. False where the sheet does not take it.
bool types(const std::shared_ptr<UITextView> &textView, const QString &text);

// Taps an option row of the sheet; the screen that comes up.
std::shared_ptr<UITableViewController> opensOption(SLComposeServiceViewController &sheet, size_t item);
void leavesOption(SLComposeServiceViewController &sheet);

// Taps a row.
void chooses(const UITableViewController &screen, NSIndexPath indexPath);
// The row's cell, after scrolling to it.
std::shared_ptr<UITableViewCell> looksAt(const UITableViewController &screen, NSIndexPath indexPath);

} // namespace SheetUser

} // namespace korvane
