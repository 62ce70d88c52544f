// What the commands' arguments have in common.
#include "CommandLine/Arguments.h"

#include "FrontEnd/FileArgument.h"

#include <QStringDecoder>

#include <algorithm>

namespace korvane {

std::string Arguments::problemWithText(const std::string &text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text.data(), qsizetype(text.size())));
    if (decoder.hasError()) return "the text is not valid UTF-8";
    return decoded.contains(QChar(u'\0')) ? "the text holds a NUL character" : std::string();
}

std::string Arguments::problemWithNumber(const std::string &text) {
    const bool isDecimal = std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    bool fits = false;
    const qint64 number = QByteArray::fromStdString(text).toLongLong(&fits);
    return isDecimal && fits && number > 0 ? std::string() : "\"" + text + "\" is not a number above 0";
}

std::string Arguments::problemWithFile(const std::string &text) {
    if (text.empty()) return "a file's name is empty";
    const bool isHere = FileArgument::path(QByteArray::fromStdString(text)).has_value();
    return isHere ? std::string() : text + ": this is not a file on this device; copy it here first";
}

QByteArray Arguments::path(const std::string &text) {
    return FileArgument::path(QByteArray::fromStdString(text)).value_or(QByteArray());
}

QStringList Arguments::texts(const std::vector<std::string> &arguments) {
    QStringList list;
    for (const std::string &argument : arguments)
        list.append(QString::fromStdString(argument));
    return list;
}

QString Arguments::serviceOf(const ACAccountType &type) {
    return type == ACAccountType(ACAccountTypeIdentifierVimeo) ? QStringLiteral("vimeo") : QStringLiteral("flickr");
}

} // namespace korvane
