#include "StandIn/VimeoAnswer.h"

#include <QJsonDocument>

namespace standin {

namespace {

QByteArray answer(QJsonObject object, const char *stat) {
    object.insert(QStringLiteral("generated_in"), QStringLiteral("0.03"));
    object.insert(QStringLiteral("stat"), QLatin1String(stat));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString flag(bool set) {
    return set ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

QByteArray vimeoOk(const QJsonObject &content) {
    return answer(content, "ok");
}

QByteArray vimeoFailure(int code, const QByteArray &message, const QByteArray &explanation) {
    const QJsonObject err{{QStringLiteral("code"), QString::number(code)},
                          {QStringLiteral("msg"), QString::fromUtf8(message)},
                          {QStringLiteral("expl"), QString::fromUtf8(explanation)}};
    return answer({{QStringLiteral("err"), err}}, "fail");
}

QByteArray vimeoLogin(const QByteArray &userId, const QByteArray &username) {
    const QJsonObject user{{QStringLiteral("id"), QString::fromLatin1(userId)},
                           {QStringLiteral("username"), QString::fromUtf8(username)}};
    return vimeoOk({{QStringLiteral("user"), user}});
}

QByteArray vimeoQuota(const QByteArray &userId, const Quota &quota, qint64 bytesUsed) {
    const QJsonObject space{{QStringLiteral("free"), QString::number(quota.free)},
                            {QStringLiteral("max"), QString::number(quota.free + bytesUsed)},
                            {QStringLiteral("used"), QString::number(bytesUsed)}};
    const QJsonObject user{{QStringLiteral("id"), QString::fromLatin1(userId)},
                           {QStringLiteral("is_plus"), flag(true)},
                           {QStringLiteral("upload_space"), space},
                           {QStringLiteral("hd_quota"), flag(quota.hd)},
                           {QStringLiteral("sd_quota"), flag(quota.sd)}};
    return vimeoOk({{QStringLiteral("user"), user}});
}

} // namespace standin
