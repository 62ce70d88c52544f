#include "StandIn/Parameters.h"

namespace standin {

namespace {

QByteArray formDecoded(QByteArray text) {
    text.replace('+', ' ');
    return QByteArray::fromPercentEncoding(text);
}

} // namespace

QByteArray valueOf(const Parameters &parameters, const QByteArray &name) {
    for (const Parameter &parameter : parameters) {
        if (parameter.first == name) return parameter.second;
    }
    return {};
}

QByteArray pathOf(const QByteArray &target) {
    return target.split('?').first();
}

QByteArray queryOf(const QByteArray &target) {
    return target.mid(pathOf(target).size() + 1);
}

QByteArray percentEncoded(const QByteArray &text) {
    return text.toPercentEncoding();
}

Parameters decodedForm(const QByteArray &form) {
    Parameters parameters;
    for (const QByteArray &piece : form.split('&')) {
        if (piece.isEmpty()) continue;
        const qsizetype equals = piece.indexOf('=');
        const QByteArray name = equals < 0 ? piece : piece.left(equals);
        parameters.append({formDecoded(name), equals < 0 ? QByteArray("") : formDecoded(piece.mid(equals + 1))});
    }
    return parameters;
}

} // namespace standin
