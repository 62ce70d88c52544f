// The blocking URL send against servers that misbehave.
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Tests/Support/DefaultRoute.h"
#include "Tests/Support/ScriptedServer.h"
#include "Tests/Support/Testing.h"

#include <future>

using namespace korvane;
using namespace korvane::test;

namespace {

const QByteArray okAnswer = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok";

NSMutableURLRequest post(const QString &url, std::vector<NSData> body) {
    NSMutableURLRequest request{*NSURL::URLWithString(url)};
    request.HTTPMethod = "POST";
    request.HTTPBody = std::move(body);
    return request;
}

struct Answer {
    std::optional<NSData> body;
    NSHTTPURLResponse response;
    std::optional<NSError> error;
};

Answer send(const NSMutableURLRequest &request) {
    Answer answer;
    answer.body = NSURLConnection::sendSynchronousRequest(request, &answer.response, &answer.error);
    return answer;
}

} // namespace

TEST(URLConnection, SendsThePiecesAsOneBodyAndKeepsTheConnection) {
    QByteArray head;
    QByteArray body;
    const ScriptedServer server([&](ScriptedConnection &connection, int) {
        for (int i = 0; i < 2; ++i) {
            head = connection.readHead();
            body = connection.readBodyOf(head);
            connection.write(okAnswer);
        }
        connection.waitForEnd();
    });
    const QByteArray middle = jpegOfSize(3'000'000);
    const auto request =
        post(server.url(QStringLiteral("/a?b=%7E")), {NSData("head"), NSData(middle), NSData(), NSData("tail")});
    for (int i = 0; i < 2; ++i) {
        const Answer answer = send(request);
        ASSERT_FALSE(answer.error) << answer.error->description().toStdString();
        EXPECT_EQ(answer.body->bytes(), "ok");
        EXPECT_EQ(body, "head" + middle + "tail");
    }
    EXPECT_EQ(server.connections(), 1);
    EXPECT_TRUE(head.startsWith("POST /a?b=%7E HTTP/1.1\r\n")) << head.toStdString();
    EXPECT_FALSE(head.contains("Expect:"));
    EXPECT_FALSE(head.contains("Transfer-Encoding"));
}

TEST(URLConnection, TakesAnyStatusForAnAnswerAndFollowsNothing) {
    const ScriptedServer server([&](ScriptedConnection &connection, int) {
        connection.readHead();
        connection.write("HTTP/1.1 308 Permanent Redirect\r\nLocation: /elsewhere\r\nRange: bytes=0-7\r\n"
                         "Content-Length: 0\r\n\r\n");
        connection.waitForEnd();
    });
    const Answer answer = send(post(server.url(), {}));
    ASSERT_TRUE(answer.body);
    EXPECT_EQ(answer.response.statusCode, 308);
    EXPECT_EQ(answer.response.valueForHTTPHeaderField("range"), QByteArray("bytes=0-7"));
    EXPECT_EQ(server.connections(), 1);
}

TEST(URLConnection, GivesEachTransportFailureItsCode) {
    const auto answersWith = [](const QByteArray &answer) {
        return [answer](ScriptedConnection &connection, int) {
            connection.readBodyOf(connection.readHead());
            connection.write(answer);
        };
    };
    const auto reset = [](ScriptedConnection &connection, int) {
        connection.readHead();
        connection.reset();
    };
    const auto silence = [](ScriptedConnection &connection, int) { connection.waitForEnd(); };
    const std::tuple<const char *, ScriptedServer::Script, qint64> cases[] = {
        {"reset while the body is on its way", reset, NSURLErrorNetworkConnectionLost},
        {"answer breaks off", answersWith("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf"),
         NSURLErrorNetworkConnectionLost},
        {"many headers", answersWith("HTTP/1.1 200 OK\r\n" + QByteArray("X-More: and more\r\n").repeated(100'000)),
         NSURLErrorDataLengthExceedsMaximum},
        {"a long header", answersWith("HTTP/1.1 200 OK\r\nX-More: " + QByteArray(2'000'000, 'x')),
         NSURLErrorDataLengthExceedsMaximum},
        {"no HTTP", answersWith("220 mail.example.org ESMTP\r\n"), NSURLErrorBadServerResponse},
        {"no length", answersWith("HTTP/1.1 200 OK\r\nContent-Length: some\r\n\r\n"), NSURLErrorBadServerResponse},
        {"silence", silence, NSURLErrorTimedOut},
    };
    for (const auto &[what, script, code] : cases) {
        SCOPED_TRACE(what);
        const ScriptedServer server(script);
        auto request = post(server.url(), {NSData(jpegOfSize(8'000'000))});
        request.timeoutInterval = 0.5;
        const Answer answer = send(request);
        EXPECT_FALSE(answer.body);
        ASSERT_TRUE(answer.error);
        EXPECT_EQ(answer.error->domain(), NSURLErrorDomain);
        EXPECT_EQ(answer.error->code(), code) << answer.error->description().toStdString();
        EXPECT_EQ(server.connections(), 1);
    }
    EXPECT_EQ(send(post(QStringLiteral("http://127.0.0.1:1/"), {})).error->code(), NSURLErrorCannotConnectToHost);
    EXPECT_EQ(send(post(QStringLiteral("ftp://127.0.0.1/"), {})).error->code(), NSURLErrorUnknown);
}

TEST(URLConnection, DoesNotRepeatARequestThatTheServiceMayHaveActedOn) {
    // The kept connection takes the second request whole and dies without an answer.
    std::atomic<int> requests = 0;
    const ScriptedServer server([&](ScriptedConnection &connection, int) {
        for (int i = 0; i < 2; ++i) {
            const QByteArray head = connection.readHead();
            if (head.isEmpty()) return;
            connection.readBodyOf(head);
            if (++requests == 1) connection.write(okAnswer);
        }
    });
    EXPECT_FALSE(send(post(server.url(), {NSData("first")})).error);
    const Answer second = send(post(server.url(), {NSData("second")}));
    ASSERT_TRUE(second.error);
    EXPECT_EQ(second.error->code(), NSURLErrorNetworkConnectionLost);
    EXPECT_EQ(requests, 2);
}

TEST(URLConnection, KeepsOffTheCellularNetworkWhereTheRequestHasTo) {
    const ScriptedServer server([](ScriptedConnection &connection, int) {
        connection.readHead();
        connection.write(okAnswer);
    });
    const QString elsewhere = DefaultRoute::notLoopback(server.url());
    const std::tuple<const char *, bool, QString, bool> cases[] = {
        {"wwan0", false, elsewhere, false},
        {"wwan0", true, elsewhere, true},
        {"wwan0", false, server.url(), true}, // this machine
        {"eth0", false, elsewhere, true},
    };
    for (const auto &[device, isAllowed, url, isSent] : cases) {
        const DefaultRoute route(device);
        auto request = post(url, {});
        request.allowsCellularAccess = isAllowed;
        const Answer answer = send(request);
        EXPECT_EQ(answer.body.has_value(), isSent) << device << ' ' << url.toStdString();
        if (isSent) continue;
        EXPECT_TRUE(says(answer.error, "only the cellular network"));
        EXPECT_EQ(answer.error->code(), NSURLErrorNotConnectedToInternet);
    }
    EXPECT_EQ(server.connections(), 3);
}

TEST(URLConnection, AFileThatChangesWhileItIsSentNeverArrivesWhole) {
    const TemporaryHome home;
    for (const bool shrinks : {true, false}) {
        const QByteArray path = home.file("photo.jpg", jpegOfSize(20'000'000));
        std::atomic<qsizetype> received = 0;
        const ScriptedServer server([&](ScriptedConnection &connection, int) {
            const QByteArray head = connection.readHead();
            received = connection.readBody(100'000).size();
            QFile file(QFile::decodeName(path));
            file.open(QIODevice::ReadWrite);
            if (shrinks)
                file.resize(1'000);
            else
                file.write("other");
            file.close();
            received += connection.readBody(20'000'000 - received).size();
            connection.write(okAnswer);
        });
        const Answer answer = send(post(server.url(), {*NSData::dataWithContentsOfFile(path)}));
        EXPECT_TRUE(says(answer.error, "changed"));
        EXPECT_LT(received, 20'000'000);
    }
}

TEST(URLConnection, CountsWhatMovesAndIsCancelledAtOnce) {
    std::atomic<bool> arrived = false;
    const ScriptedServer server([&](ScriptedConnection &connection, int) {
        connection.readHead();
        connection.readBody(1'000'000);
        arrived = true;
        connection.waitForEnd();
    });
    auto request = post(server.url(), {NSData(jpegOfSize(1'000'000))});
    request.uploadContext = std::make_shared<UploadContext>();
    auto sent = std::async(std::launch::async, [&] { return send(request); });
    ASSERT_TRUE(waitFor([&] { return arrived && request.uploadContext->snapshot().bytesSent == 1'000'000; }));
    EXPECT_EQ(request.uploadContext->snapshot().bytesTotal, 1'000'000);

    QElapsedTimer timer;
    timer.start();
    request.uploadContext->cancel();
    const Answer answer = sent.get();
    EXPECT_LT(timer.elapsed(), 200);
    ASSERT_TRUE(answer.error);
    EXPECT_EQ(answer.error->code(), NSURLErrorCancelled);
    EXPECT_EQ(request.uploadContext->snapshot().transportError->code(), NSURLErrorCancelled);
    EXPECT_EQ(send(request).error->code(), NSURLErrorCancelled) << "a cancelled job sends nothing more";
}
