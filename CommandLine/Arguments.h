// What the commands' arguments have in common.
#pragma once

#include "CommandLine/ExitStatus.h"
#include "Platform/Accounts/ACAccountType.h"
#include "Platform/Foundation/NSError.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace korvane {

namespace Arguments {

// Checks for the command-line parser: what is wrong with the text, empty if nothing is.
std::string problemWithText(const std::string &text);   // it has to be UTF-8
std::string problemWithNumber(const std::string &text); // a whole number above 0 that fits into 64 bits

QStringList texts(const std::vector<std::string> &arguments);
// A path for people; bytes that are no text appear replaced.
QString shownPath(const QByteArray &path);

// "flickr" or "vimeo", as the commands take it.
QString serviceOf(const ACAccountType &type);

// The exit status that an error of the hand-over or of the status interface leads to.
ExitStatus exitStatusOf(const NSError &error);

} // namespace Arguments

} // namespace korvane
