// Request parameters as names and values in the order sent, and the two encodings that carry them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

namespace standin {

// Decoded bytes; a name may occur more than once and a value may be empty.
using Parameter = QPair<QByteArray, QByteArray>;
using Parameters = QList<Parameter>;

// The first value of that name, else an empty one.
QByteArray valueOf(const Parameters &parameters, const QByteArray &name);

// The two halves of a request line's target, as sent.
QByteArray pathOf(const QByteArray &target);
QByteArray queryOf(const QByteArray &target);

// RFC 5849 section 3.6: everything but letters, digits, "-", ".", "_" and "~" becomes %XX in upper case.
QByteArray percentEncoded(const QByteArray &text);

// A query or an application/x-www-form-urlencoded body ("+" is a space). A name without "=" has an empty value.
Parameters decodedForm(const QByteArray &form);

} // namespace standin
