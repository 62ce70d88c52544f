// Query texts from outside: parsed, written again and signed.
#include "Platform/Social/OAuthSigner.h"
#include "Tests/Fuzz/Expect.h"

#include <QUrl>

#include <algorithm>

using namespace korvane;
using korvane::test::expect;

namespace {

QString queryOf(const OAuthParameters &parameters) {
    QByteArrayList pairs;
    for (const auto &[name, value] : parameters)
        pairs.append(QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value));
    return QString::fromLatin1(pairs.join('&'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(bytes), qsizetype(size));
    OAuthParameters parameters = OAuthSigner::parametersOfQuery(text);
    expect(OAuthSigner::parametersOfQuery(queryOf(parameters)) == parameters, "a query that was written is read alike");

    const auto url = NSURL::URLWithString(QStringLiteral("http://") + text);
    if (!url) return 0;
    const QByteArray base = OAuthSigner::signatureBaseString("POST", *url, parameters);
    expect(base.count('&') == 2, "a base string has three parts");
    std::reverse(parameters.begin(), parameters.end());
    expect(OAuthSigner::signatureBaseString("POST", *url, parameters) == base,
           "the order of parameters does not count");
    return 0;
}
