#include "StandIn/ConsentPage.h"

#include "StandIn/PageCard.h"

namespace standin {

namespace {

const char *const Style = R"css(
:root { color-scheme: light dark; --ground: #f5f5f7; --card: #fff; --ink: #1c1c21; --soft: #6a6a76; --line: #e3e3e9;
  --accent: #c2185b; --on-accent: #fff; }
@media (prefers-color-scheme: dark) { :root { --ground: #15161a; --card: #1f2127; --ink: #ececf1; --soft: #9a9caa;
  --line: #31343d; --accent: #ff7fab; --on-accent: #15161a; } }
body { margin: 0; min-height: 100vh; display: grid; place-items: center; background: var(--ground); color: var(--ink);
  font: 16px/1.5 system-ui, sans-serif; }
main { background: var(--card); border: 1px solid var(--line); border-radius: 14px; padding: 28px 32px; margin: 16px;
  max-width: 420px; }
h1 { font-size: 22px; margin: 0 0 8px; }
p { color: var(--soft); margin: 0 0 20px; }
code { display: block; font-size: 30px; letter-spacing: .06em; text-align: center; margin: 8px 0 20px; }
form { display: flex; gap: 12px; flex-wrap: wrap; }
button { flex: 1; font: inherit; padding: 10px 16px; border-radius: 10px; border: 1px solid var(--line);
  background: transparent; color: inherit; cursor: pointer; }
button.yes { background: var(--accent); border-color: var(--accent); color: var(--on-accent); font-weight: 600; }
)css";

QByteArray page(const QByteArray &service, const QByteArray &content) {
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>" + service +
           " stand-in</title><meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"><style>" + Style +
           "</style></head>\n<body><main>" + content + "</main></body></html>\n";
}

} // namespace

QByteArray consentPage(const QByteArray &service, const QByteArray &username, const QByteArray &token) {
    return page(service, "<h1>Korvane wants to use your " + service +
                             " account</h1><p>It could then upload to the account <b>" + username +
                             "</b> and change what is there. This is the stand-in: no real account is touched.</p>"
                             "<form method=\"post\"><input type=\"hidden\" name=\"oauth_token\" value=\"" +
                             escaped(QString::fromUtf8(token)) +
                             "\"><button class=\"yes\" name=\"decision\" value=\"allow\">Allow</button>"
                             "<button name=\"decision\" value=\"refuse\">Refuse</button></form>");
}

QByteArray codePage(const QByteArray &service, const QByteArray &code) {
    return page(service,
                "<h1>Your code</h1><p>Type it into Korvane to finish the sign-in.</p><code>" + code + "</code>");
}

QByteArray messagePage(const QByteArray &service, const QByteArray &message) {
    return page(service, "<h1>" + service + "</h1><p>" + message + "</p>");
}

} // namespace standin
