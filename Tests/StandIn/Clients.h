// Clients of the stand-in that sign their requests on their own.
#pragma once

#include "Platform/Accounts/ACAccountCredential.h"
#include "Platform/Social/OAuthSigner.h"
#include "StandIn/StandIn.h"
#include "Tests/Support/Testing.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <httplib.h>

namespace korvane::test {

class SignedClient : public httplib::Client {
public:
    SignedClient(const standin::StandIn &server, standin::Credential user)
        : httplib::Client(server.url().toStdString()), _url(server.url()), _user(std::move(user)) {}

    // Of the user, with a fresh nonce each time.
    httplib::Headers authorization(const char *verb, const std::string &target,
                                   const httplib::Params &form = {}) const {
        OAuthParameters parameters = OAuthSigner::parametersOfQuery(QString::fromStdString(target).section(u'?', 1));
        for (const auto &[name, value] : form)
            parameters.append({QString::fromStdString(name), QString::fromStdString(value)});
        const auto text = [](const QByteArray &bytes) { return QString::fromUtf8(bytes); };
        static int nonce = 0;
        const QByteArray header = OAuthSigner::authorizationHeader(
            verb, *NSURL::URLWithString(_url + QString::fromStdString(target)), parameters,
            {text(_user.consumerKey), text(_user.consumerSecret), text(_user.token), text(_user.tokenSecret)},
            QDateTime::currentSecsSinceEpoch(), QString::number(++nonce));
        return {{"Authorization", header.toStdString()}};
    }
    httplib::Result postForm(const std::string &target, const httplib::Params &form) {
        return Post(target, authorization("POST", target, form), form);
    }
    QByteArray get(const std::string &path) { return QByteArray::fromStdString(Get(path)->body); }

private:
    const QString _url;
    const standin::Credential _user;
};

struct Reply {
    int status = 0; // 0: the connection ended without a whole answer
    QByteArray body;
};

class PhotoClient : public SignedClient {
public:
    explicit PhotoClient(const standin::StandIn &server) : SignedClient(server, standin::StandIn::flickrCredential()) {}

    httplib::Headers authorizationOf(const char *title) const {
        return authorization("POST", "/services/upload/", {{"title", title}});
    }
    Reply upload(const httplib::Headers &headers, const httplib::MultipartFormDataItems &parts) {
        return _reply(Post("/services/upload/", headers, parts));
    }
    Reply upload(const QByteArray &photo, const char *title = "t") {
        return upload(authorizationOf(title),
                      {{"title", title, "", ""}, {"photo", photo.toStdString(), "a.jpg", "image/jpeg"}});
    }
    Reply addPhoto(const char *album, const QByteArray &photo) {
        return _reply(postForm(
            "/services/rest/",
            {{"method", "flickr.photosets.addPhoto"}, {"photoset_id", album}, {"photo_id", photo.toStdString()}}));
    }

private:
    static Reply _reply(const httplib::Result &result) {
        return result ? Reply{result->status, QByteArray::fromStdString(result->body)} : Reply();
    }
};

inline QByteArray photoIdIn(const Reply &reply) {
    const qsizetype begin = reply.body.indexOf("<photoid>") + 9;
    return reply.body.mid(begin, reply.body.indexOf("</photoid>") - begin);
}

inline const httplib::Headers::value_type mp4("Content-Type", "video/mp4");

inline httplib::Headers::value_type rangeHeader(const char *range) {
    return {"Content-Range", range};
}

// Uploads a video step by step, signed on its own.
class VimeoClient : public SignedClient {
public:
    explicit VimeoClient(const standin::StandIn &server) : SignedClient(server, standin::StandIn::vimeoCredential()) {}

    int rest(const httplib::Params &form, const std::string &query = "format=json") {
        return postForm("/api/rest/v2?" + query, form)->status;
    }
    QJsonValue method(const std::string &name, httplib::Params form) {
        form.emplace("method", "vimeo.videos." + name);
        const std::string answer = postForm("/api/rest/v2?format=json", form)->body;
        return QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object();
    }
    std::string ticket() {
        return method("upload.getTicket", {{"upload_method", "streaming"}})[u"ticket"][u"id"].toString().toStdString();
    }
    httplib::Result put(const std::string &ticket, httplib::Headers headers, const QByteArray &body) {
        const std::string target = "/upload?ticket_id=" + ticket;
        headers.merge(authorization("PUT", target));
        return Put(target, headers, body.constData(), size_t(body.size()), "");
    }
    // The status; 0: the connection ended without an answer.
    int chunk(const std::string &ticket, const QByteArray &bytes, const char *range = nullptr) {
        const auto reply =
            put(ticket, range ? httplib::Headers{mp4, rangeHeader(range)} : httplib::Headers{mp4}, bytes);
        return reply ? reply->status : 0;
    }
    // The bytes stored; -1 if it does not say.
    qint64 verify(const std::string &ticket) {
        const auto reply = put(ticket, {rangeHeader("bytes */*")}, {});
        return reply->status == 308 ? std::stoll(reply->get_header_value("Range").substr(8)) : -1;
    }
    // The video's id; empty if it is refused.
    std::string commit(const std::string &ticket) {
        const QJsonValue answer = method("upload.complete", {{"ticket_id", ticket}, {"filename", "video.mp4"}});
        return answer[u"ticket"][u"video_id"].toString().toStdString();
    }
};

// A running stand-in and its client.
template <class Client>
class StandInTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.start());
        client.emplace(server);
    }

    standin::StandIn server{standin::StandInOptions{.photoLimit = 300'000}};
    std::optional<Client> client;
};

} // namespace korvane::test
