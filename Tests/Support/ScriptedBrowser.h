// A person at a browser, as far as a sign-in needs one.
#pragma once

#include "Tests/Support/WaitFor.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <future>
#include <httplib.h>

namespace korvane::test {

struct Visit {
    int status = 0; // 0: no answer
    QByteArray body;
    QString location; // where it sends the browser on

    // The code that a page shows to be typed in.
    QString code() const {
        const qsizetype begin = body.indexOf("<code>") + 6;
        return QString::fromUtf8(body.mid(begin, body.indexOf("</code>") - begin));
    }
};

// Opens an address, or sends the form to it, while the event loop of this thread runs on: the address may be our own.
inline Visit visit(const QString &address, const httplib::Params &form = {}) {
    auto answer = std::async(std::launch::async, [&] {
        const QUrl url(address);
        httplib::Client client(url.host().toStdString(), url.port());
        const std::string target =
            url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::FullyEncoded).toStdString();
        const auto result = form.empty() ? client.Get(target) : client.Post(target, form);
        if (!result) return Visit();
        return Visit{result->status, QByteArray::fromStdString(result->body),
                     QString::fromStdString(result->get_header_value("Location"))};
    });
    waitFor([&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    return answer.get();
}

// Opens the page and presses "allow" or "refuse". Does not follow where that leads.
inline Visit decide(const QString &page, const char *decision) {
    const Visit question = visit(page);
    if (question.status != 200) return question;
    const qsizetype begin = question.body.indexOf("name=\"oauth_token\" value=\"") + 26;
    const QByteArray token = question.body.mid(begin, question.body.indexOf('"', begin) - begin);
    return visit(page.section(u'?', 0, 0), {{"oauth_token", token.toStdString()}, {"decision", decision}});
}

// The same, back to the program that asked.
inline Visit decideAndReturn(const QString &page, const char *decision) {
    return visit(decide(page, decision).location);
}

} // namespace korvane::test
