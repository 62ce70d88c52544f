// Multipart bodies, cut into pieces anywhere, and every way to be wrong.
#include "StandIn/MultipartReader.h"

#include <gtest/gtest.h>

namespace standin {

namespace {

class Collector final : public PartReceiver {
public:
    bool partBegan(const PartHeader &header) override {
        text += '[' + header.name + '|' + header.fileName.value_or("-") + '|' + header.contentType + '|';
        return true;
    }
    bool partData(const char *data, qsizetype size) override {
        text.append(data, size);
        return true;
    }
    bool partEnded() override {
        text += ']';
        return true;
    }
    QByteArray refusal() const override { return "refused"; }

    QByteArray text;
};

// What was read and the error, with the body fed in pieces of that size.
std::pair<QByteArray, QByteArray> readIn(qsizetype pieces, const QByteArray &body) {
    Collector parts;
    MultipartReader reader("B", parts);
    for (qsizetype at = 0; at < body.size(); at += pieces)
        reader.feed(body.constData() + at, std::min(pieces, body.size() - at));
    reader.finish();
    return {parts.text, reader.error()};
}

const QByteArray Part("--B\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\n");

} // namespace

TEST(MultipartReader, ReadsPartsWhereverTheBodyIsCut) {
    const QByteArray tricky("\r\n--\r\n\r\n-B\r\n--C--B\r\r\n");
    const QByteArray body = Part + tricky +
                            "\r\n--B\r\ncontent-type: image/png\r\nX-More: 1\r\nContent-Disposition: form-data; " +
                            "name=\"ph\\\"oto\"; filename=\"\"\r\n\r\n\r\n--B--\r\n";
    const QByteArray expected = "[a|-||" + tricky + "][ph\"oto||image/png|]";
    for (qsizetype pieces = 1; pieces <= body.size(); ++pieces) {
        const auto [text, error] = readIn(pieces, body);
        EXPECT_EQ(text, expected) << pieces;
        EXPECT_EQ(error, "") << pieces;
    }
    EXPECT_EQ(readIn(7, body.chopped(2)).second, "") << "the last CRLF may be missing";
}

TEST(MultipartReader, RefusesEveryDeviation) {
    const QByteArray end("x\r\n--B--\r\n");
    const auto withHeader = [&](const char *lines) { return QByteArray("--B\r\n") + lines + "\r\n\r\n" + end; };
    const QByteArray endless("the body ends before the final boundary");
    const QByteArray disposition("a part's Content-Disposition is malformed");
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"", endless},
        {Part + "x\r\n--B\r\n", endless},
        {Part + "x\n--B--\n", endless},
        {Part + "x\r\n--B--\r", endless},
        {Part + end + "more", "bytes follow the final boundary"},
        {Part + "x\r\n--B more\r\n", "a boundary is not followed by CRLF"},
        {"preamble\r\n" + Part + end, "the body does not begin with the boundary"},
        {withHeader("Content-Disposition: form-data; name=\"a\"\nX: y"),
         "a part's header has a line that does not end with CRLF"},
        {"--B\r\n\r\n" + end, "a part has no header"},
        {"--B\r\n" + QByteArray(20'000, 'x'), "a part's header is too long"},
        {withHeader("Content-Type: text/plain"), "a part has no Content-Disposition header"},
        {withHeader("Content-Disposition form-data"), "a part's header has a malformed line"},
        {withHeader("Content-Disposition: form-data; name=\"a\"\r\n folded: 1"),
         "a part's header has a malformed line"},
        {withHeader("Content-Disposition: form-data; name=a"), disposition},
        {withHeader("Content-Disposition: form-data; name=\"a"), disposition},
        {withHeader("Content-Disposition: attachment; name=\"a\""), disposition},
        {withHeader("Content-Disposition: form-data; name=\"a\"\r\nContent-Disposition: form-data; name=\"b\""),
         "a part has two Content-Disposition headers"},
    };
    for (const auto &[body, problem] : cases) {
        EXPECT_EQ(readIn(1, body).second, problem) << body.left(80).toStdString();
        EXPECT_EQ(readIn(65'536, body).second, problem) << body.left(80).toStdString();
    }
}

} // namespace standin
