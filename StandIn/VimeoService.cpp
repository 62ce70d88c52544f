#include "StandIn/VimeoService.h"

#include "StandIn/ChunkBody.h"
#include "StandIn/PutHead.h"
#include "StandIn/RequestBody.h"
#include "StandIn/VimeoAnswer.h"

#include <limits>

namespace standin {

namespace {

const QByteArray Json("application/json");
const QByteArray UserId("7412099");
constexpr qint64 LargestVideo = 5'368'709'120; // bytes

QByteArray ticketOf(const Exchange &exchange) {
    return valueOf(exchange.parameters(), "ticket_id");
}

// Everything belongs into the form, once.
QByteArray formProblem(const Exchange &exchange) {
    if (queryOf(exchange.target()) != "format=json") return "its query is not \"format=json\"";
    if (!exchange.header("Content-Type").startsWith("application/x-www-form-urlencoded")) return "its body is no form";
    QList<QByteArray> names;
    for (const auto &[name, value] : exchange.parameters()) {
        if (names.contains(name)) return "it has the parameter \"" + name + "\" more than once";
        names.append(name);
    }
    return {};
}

void addTags(Video &video, const QString &tags) {
    for (const QString &tag : tags.split(QLatin1Char(','))) {
        if (!tag.trimmed().isEmpty() && !video.tags.contains(tag.trimmed())) video.tags.append(tag.trimmed());
    }
}

} // namespace

// A person who refuses comes back without a verifier.
VimeoService::VimeoService(ServiceContext &context)
    : _context(context), _check(credential(), {}, accessSecretsOf(context, credential())),
      _desk(context, _check, credential(),
            {.service = "Vimeo", .path = "/oauth", .permission = "permission", .account = {}, .refusal = {}}) {}

void VimeoService::addRoutes(HttpServer &server) {
    _desk.addRoutes(server);
    const auto route = [this](auto serve) { return routeTo(*this, serve, _context); };
    server.Post("/api/rest/v2", route(&VimeoService::_rest));
    server.Put("/upload", route(&VimeoService::_put));
    server.Post("/upload", route(&VimeoService::_put));
}

Credential VimeoService::credential() {
    return {"standin", "c1f5add1d34817a6775d10b3f6821268", "0d95bfb0e2c89a41", "4d3cf0b2a7e1986f5bd0c6e8a1f27903",
            "e27fb34c9a50d861"};
}

QByteArray VimeoService::foreignVideoId() {
    return "5200000042";
}

void VimeoService::_rest(Exchange &exchange) {
    RequestBody body(exchange.header("Content-Type"), nullptr);
    if (!exchange.readBody(body)) return;
    const QByteArray operation = valueOf(body.parameters(), "method").split('.').last();
    exchange.begin(operation);
    _context.videos.noteOperation(operation, ticketOf(exchange), valueOf(body.parameters(), "video_id"));
    if (!exchange.passesFault()) return;
    if (const QByteArray problem = formProblem(exchange); !problem.isEmpty()) return exchange.refuse(400, problem);
    if (_isSigned(exchange, body.parameters())) exchange.answer(200, Json, _call(exchange));
}

QByteArray VimeoService::_call(const Exchange &exchange) {
    const QByteArray method = valueOf(exchange.parameters(), "method");
    if (method == "vimeo.test.login") return vimeoLogin(UserId, credential().username);
    if (method == "vimeo.videos.upload.getQuota") return _quota();
    if (method == "vimeo.videos.upload.getTicket") return _ticket(exchange);
    if (method == "vimeo.videos.upload.complete") return _commit(exchange);
    if (method == "vimeo.videos.setTitle")
        return _change(exchange, "title", [](Video &video, const QString &title) { video.title = title; });
    if (method == "vimeo.videos.setDescription")
        return _change(exchange, "description", [](Video &video, const QString &text) { video.description = text; });
    if (method == "vimeo.videos.addTags") return _change(exchange, "tags", addTags);
    if (method == "vimeo.videos.setPrivacy")
        return _change(exchange, "privacy", [](Video &video, const QString &privacy) { video.privacy = privacy; });
    return vimeoFailure(112, "Method not found", "There is no method \"" + method + "\".");
}

QByteArray VimeoService::_quota() {
    return vimeoQuota(UserId, _context.videos.quota(), _context.videos.bytesUsed());
}

QByteArray VimeoService::_ticket(const Exchange &exchange) {
    if (valueOf(exchange.parameters(), "upload_method") != "streaming")
        return vimeoFailure(3, "Invalid parameter", "The upload_method is not \"streaming\".");
    const QByteArray id = _context.videos.addTicket();
    if (id.isEmpty()) return vimeoFailure(105, "Service currently unavailable", "The disk is full.");
    const QByteArray endpoint = "http://" + exchange.header("Host") + "/upload?ticket_id=" + id;
    const QJsonObject ticket{{QStringLiteral("id"), QString::fromLatin1(id)},
                             {QStringLiteral("endpoint"), QString::fromUtf8(endpoint)},
                             {QStringLiteral("max_file_size"), QString::number(LargestVideo)}};
    return vimeoOk({{QStringLiteral("ticket"), ticket}});
}

QByteArray VimeoService::_commit(const Exchange &exchange) {
    const QByteArray id = ticketOf(exchange);
    const QString filename = QString::fromUtf8(valueOf(exchange.parameters(), "filename"));
    if (filename.isEmpty()) return vimeoFailure(3, "Invalid parameter", "There is no filename.");
    qint64 videoId = 0;
    switch (_context.videos.commit(id, filename, &videoId)) {
    case VideoStore::Commit::NoTicket:
        return vimeoFailure(701, "Invalid ticket", "There is no such ticket.");
    case VideoStore::Commit::AlreadyDone:
        return vimeoFailure(702, "Invalid ticket", "The ticket was used before.");
    case VideoStore::Commit::Incomplete:
        return vimeoFailure(703, "Incomplete upload", "Not all bytes of the video are stored.");
    case VideoStore::Commit::Done:
        break;
    }
    const QJsonObject ticket{{QStringLiteral("id"), QString::fromLatin1(id)},
                             {QStringLiteral("video_id"), QString::number(videoId)}};
    return vimeoOk({{QStringLiteral("ticket"), ticket}});
}

QByteArray VimeoService::_change(const Exchange &exchange, const char *parameter,
                                 const std::function<void(Video &, const QString &)> &change) {
    const Parameters &sent = exchange.parameters();
    const QByteArray name(parameter);
    const bool present = std::any_of(sent.begin(), sent.end(), [&](const Parameter &p) { return p.first == name; });
    const QByteArray value = valueOf(sent, name);
    if (!present || (name == "privacy" && value != "anybody" && value != "nobody"))
        return vimeoFailure(3, "Invalid parameter", "The parameter \"" + name + "\" is missing or wrong.");
    const QByteArray video = valueOf(sent, "video_id");
    if (video == foreignVideoId()) return vimeoFailure(2, "Permission denied", "The video belongs to another user.");
    const bool done = _context.videos.change(video, [&](Video &v) { change(v, QString::fromUtf8(value)); });
    return done ? vimeoOk() : vimeoFailure(1, "Video not found", "There is no such video.");
}

void VimeoService::_put(Exchange &exchange) {
    const bool verify = PutHead::meansVerify(exchange.headers());
    exchange.begin(verify ? "verify" : "chunk");
    _context.videos.noteOperation(verify ? "verify" : "chunk", ticketOf(exchange), {});
    verify ? _verify(exchange) : _chunk(exchange);
}

// While a fault decides whether the chunk is served at all, it waits in memory.
void VimeoService::_chunk(Exchange &exchange) {
    const auto kind = exchange.fault().kind;
    const bool waits = kind == Fault::Kind::Answer || kind == Fault::Kind::Hang;
    ChunkBody body;
    if (!waits && !_accept(exchange, body)) return;
    if (!exchange.readBody(body) || !exchange.passesFault()) return;
    if (waits && !_accept(exchange, body)) return;
    if (body.diskRefused()) return exchange.answer(507, "text/plain", "The disk is full.\n");
    exchange.answer(200, {}, {});
}

bool VimeoService::_accept(Exchange &exchange, ChunkBody &body) {
    const auto head = _head(exchange);
    if (!head) return false;
    const Fault &fault = exchange.fault();
    const qint64 limit = fault.kind == Fault::Kind::StoreOnly ? fault.bytes : std::numeric_limits<qint64>::max();
    QByteArray problem;
    auto chunk = _context.videos.beginChunk(ticketOf(exchange), *head, limit, &problem);
    if (!chunk) {
        exchange.refuse(400, problem);
        return false;
    }
    body.storeIn(std::move(chunk));
    return true;
}

void VimeoService::_verify(Exchange &exchange) {
    if (!exchange.passesFault() || !_head(exchange)) return;
    const auto stored = _context.videos.bytesStored(ticketOf(exchange));
    if (!stored) return exchange.refuse(400, "there is no such ticket, or it was committed");
    const Fault &fault = exchange.fault();
    const bool lies = fault.kind == Fault::Kind::ReportRange;
    const QByteArray truth = "bytes=0-" + QByteArray::number(*stored);
    if (!lies || fault.range) exchange.setHeader("Range", lies ? *fault.range : truth);
    exchange.answer(308, {}, {});
}

// Nothing when the request was answered.
std::optional<PutHead> VimeoService::_head(Exchange &exchange) {
    QByteArray problem = "it is no PUT";
    auto head = exchange.method() == "PUT" ? PutHead::read(exchange.headers(), &problem) : std::nullopt;
    if (!head) exchange.refuse(400, problem);
    if (!head || !_isSigned(exchange, {})) return std::nullopt;
    return head;
}

bool VimeoService::_isSigned(Exchange &exchange, const Parameters &form) {
    const auto problem = _check.problem(exchange.signedRequest(form));
    if (problem) exchange.answer(401, Json, vimeoFailure(401, "Invalid signature", *problem));
    return !problem;
}

} // namespace standin
