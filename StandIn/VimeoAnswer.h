// The JSON that the Vimeo service answers with: numbers and flags are strings.
#pragma once

#include "StandIn/VideoStore.h"

namespace standin {

QByteArray vimeoOk(const QJsonObject &content = {});
QByteArray vimeoFailure(int code, const QByteArray &message, const QByteArray &explanation);

QByteArray vimeoLogin(const QByteArray &userId, const QByteArray &username);
QByteArray vimeoQuota(const QByteArray &userId, const Quota &quota, qint64 bytesUsed);

} // namespace standin
