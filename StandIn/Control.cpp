#include "StandIn/Control.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace standin {

namespace {

constexpr int MostRequests = 100'000;

using Step = std::function<void(ServiceContext &)>;

bool isStatus(int status) {
    return status >= 200 && status <= 599;
}

std::optional<qint64> wholeNumber(const QJsonObject &object, const char *key) {
    const auto value = object.value(QLatin1String(key));
    return value.isDouble() && value.toInteger(-1) >= 0 ? std::optional(value.toInteger()) : std::nullopt;
}

// What to do with the operation's queue; nothing when the object names no fault or an impossible one.
std::function<void(FaultQueue &, int)> faultOf(const QJsonObject &object) {
    const auto has = [&](const char *key) { return object.value(QLatin1String(key)).toBool(); };
    if (const int status = object.value(QStringLiteral("fail")).toInt(); isStatus(status))
        return [status](FaultQueue &queue, int count) { queue.fail(status, count); };
    if (const QJsonObject answer = object.value(QStringLiteral("answer")).toObject(); !answer.isEmpty()) {
        const int status = answer.value(QStringLiteral("status")).toInt(200);
        const QByteArray type = answer.value(QStringLiteral("type")).toString(QStringLiteral("text/plain")).toUtf8();
        const QByteArray body = answer.value(QStringLiteral("body")).toString().toUtf8();
        if (!isStatus(status) || type.contains('\n') || type.contains('\r')) return {};
        return [=](FaultQueue &queue, int count) { queue.answer(status, type, body, count); };
    }
    if (const auto bytes = wholeNumber(object, "dropAfterBytes"))
        return [n = *bytes](FaultQueue &queue, int count) { queue.dropAfterBytes(n, count); };
    if (const auto bytes = wholeNumber(object, "storeOnly"))
        return [n = *bytes](FaultQueue &queue, int count) { queue.storeOnly(n, count); };
    if (const auto delay = wholeNumber(object, "delay"))
        return [ms = *delay](FaultQueue &queue, int count) { queue.delay(ms, count); };
    if (const auto range = object.value(QStringLiteral("range")); range.isNull() || range.isString()) {
        const auto text = range.isNull() ? std::nullopt : std::optional(range.toString().toUtf8());
        if (text && (text->contains('\n') || text->contains('\r'))) return {};
        return [=](FaultQueue &queue, int count) { queue.reportRange(text, count); };
    }
    if (has("hang")) return [](FaultQueue &queue, int count) { queue.hang(count); };
    if (has("truncate")) return [](FaultQueue &queue, int count) { queue.truncate(count); };
    if (has("dropBeforeAnswer")) return [](FaultQueue &queue, int count) { queue.dropBeforeAnswer(count); };
    if (has("ok")) return [](FaultQueue &queue, int count) { queue.thenOk(count); };
    return {};
}

bool hasOnly(const QJsonObject &object, const QStringList &keys) {
    const QStringList present = object.keys();
    return std::all_of(present.begin(), present.end(), [&](const QString &key) { return keys.contains(key); });
}

// 0 when there is none.
std::optional<double> probability(const QJsonObject &object, const char *key) {
    const auto value = object.value(QLatin1String(key));
    if (value.isUndefined()) return 0;
    return value.isDouble() && value.toDouble() >= 0 && value.toDouble() <= 1 ? std::optional(value.toDouble())
                                                                              : std::nullopt;
}

Step weatherOf(const QJsonObject &object) {
    static const QStringList keys{QStringLiteral("seed"),     QStringLiteral("error"), QStringLiteral("reset"),
                                  QStringLiteral("loseTail"), QStringLiteral("delay"), QStringLiteral("on")};
    const auto seed = wholeNumber(object, "seed");
    const auto error = probability(object, "error");
    const auto reset = probability(object, "reset");
    const auto loseTail = probability(object, "loseTail");
    const auto delay =
        object.contains(QStringLiteral("delay")) ? wholeNumber(object, "delay") : std::optional<qint64>(0);
    if (!hasOnly(object, keys) || !seed || !error || !reset || !loseTail || !delay) return {};
    QByteArrayList operations;
    for (const auto operation : object.value(QStringLiteral("on")).toArray())
        operations.append(operation.toString().toUtf8());
    const Weather weather{.seed = quint64(*seed),
                          .error = *error,
                          .reset = *reset,
                          .loseTail = *loseTail,
                          .delay = *delay,
                          .operations = operations};
    return [weather](ServiceContext &context) { context.faults.setWeather(weather); };
}

Step quotaOf(const QJsonValue &value) {
    if (value.isNull()) return [](ServiceContext &context) { context.videos.setQuota(std::nullopt); };
    const QJsonObject object = value.toObject();
    const auto free = wholeNumber(object, "free");
    if (!free || !hasOnly(object, {QStringLiteral("free"), QStringLiteral("hd"), QStringLiteral("sd")})) return {};
    const Quota quota{.free = *free,
                      .hd = object.value(QStringLiteral("hd")).toBool(true),
                      .sd = object.value(QStringLiteral("sd")).toBool(true)};
    return [quota](ServiceContext &context) { context.videos.setQuota(quota); };
}

Step faultStepOf(const QJsonObject &object) {
    const QByteArray operation = object.value(QStringLiteral("on")).toString().toUtf8();
    const int count = object.value(QStringLiteral("count")).toInt(1);
    const auto fault = faultOf(object);
    if (operation.isEmpty() || !fault || count < 1 || count > MostRequests) return {};
    return [=](ServiceContext &context) { fault(context.faults.on(operation), count); };
}

Step stepOf(const QJsonObject &object) {
    if (object.contains(QStringLiteral("on"))) return faultStepOf(object);
    if (const auto weather = object.value(QStringLiteral("weather")); weather.isObject())
        return weatherOf(weather.toObject());
    if (object.contains(QStringLiteral("quota"))) return quotaOf(object.value(QStringLiteral("quota")));
    if (object.value(QStringLiteral("clear")).toBool()) return [](ServiceContext &context) { context.clear(); };
    if (object.value(QStringLiteral("release")).toBool())
        return [](ServiceContext &context) { context.gate.release(); };
    if (const auto delay = wholeNumber(object, "delay"))
        return [ms = *delay](ServiceContext &context) { context.delay = ms; };
    return {};
}

} // namespace

QString plan(ServiceContext &context, const QByteArray &json) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) return QStringLiteral("not JSON: ") + error.errorString();
    const QJsonArray objects = document.isArray() ? document.array() : QJsonArray{document.object()};
    std::vector<Step> steps;
    for (const auto value : objects) {
        steps.push_back(stepOf(value.toObject()));
        if (!steps.back())
            return QStringLiteral("not understood: ") +
                   QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    }
    for (const Step &step : steps)
        step(context);
    return {};
}

} // namespace standin
