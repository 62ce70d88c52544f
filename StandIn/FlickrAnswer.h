// The XML that the Flickr services answer with.
#pragma once

#include "StandIn/PhotoStore.h"

namespace standin {

QByteArray flickrOk(const QByteArray &content);
QByteArray flickrFailure(int code, const QByteArray &message);

// `page` counts from 1.
QByteArray flickrAlbumList(const std::vector<Album> &albums, qint64 page, qint64 perPage);
QByteArray flickrLogin(const QByteArray &userId, const QByteArray &username);

} // namespace standin
