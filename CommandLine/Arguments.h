// What the commands' arguments have in common.
#pragma once

#include "Platform/Accounts/ACAccountType.h"

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
std::string problemWithFile(const std::string &text);   // a path, or the address of something on this device

// Of an argument without that problem.
QByteArray path(const std::string &text);
QStringList texts(const std::vector<std::string> &arguments);
// "flickr" or "vimeo", as the commands take it.
QString serviceOf(const ACAccountType &type);

} // namespace Arguments

} // namespace korvane
