// What a person does in front of a share sheet, for a command that does it in their place.
#pragma once

#include "Korvane/FlickrComposeViewController.h"
#include "Korvane/VimeoComposeViewController.h"
#include "Platform/UIKit/UITableViewController.h"

#include <QStringList>

namespace korvane {

namespace SheetUser {

// The sheet for photos and the one for a video, opened. Null, after saying why, where it has no account to use.
std::shared_ptr<FlickrComposeViewController> opensFlickrSheet(std::vector<SLAttachment> attachments = {});
std::shared_ptr<VimeoComposeViewController> opensVimeoSheet(const SLAttachment &attachment);

// False, after saying why, where the account's credential cannot be had now. May take up to five seconds.
bool hasCredential(const ACAccount &account);
// Says which account is shared with, where there are several of its service.
void saysAccount(const ACAccount &account);

// In place of what stands there. False where the sheet does not take it.
bool types(const std::shared_ptr<UITextView> &textView, const QString &text);

// Taps an option row of the sheet; the screen that comes up.
std::shared_ptr<UITableViewController> opensOption(SLComposeServiceViewController &sheet, size_t item);
void leavesOption(SLComposeServiceViewController &sheet);
// The option rows, as "Audience: Public".
QStringList reads(const SLComposeServiceViewController &sheet);

// Taps a row.
void chooses(const UITableViewController &screen, NSIndexPath indexPath);
// The row's cell, after scrolling to it.
std::shared_ptr<UITableViewCell> looksAt(const UITableViewController &screen, NSIndexPath indexPath);

// Taps Post. The exit status, after saying why, if nothing was shared.
std::optional<int> posts(SLComposeServiceViewController &sheet);

} // namespace SheetUser

} // namespace korvane
