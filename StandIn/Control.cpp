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
    if (const auto bytes = object.value(QStringLiteral("dropAfterBytes")); bytes.isDouble() && bytes.toInteger() >= 0)
        return [n = bytes.toInteger()](FaultQueue &queue, int count) { queue.dropAfterBytes(n, count); };
    if (has("hang")) return [](FaultQueue &queue, int count) { queue.hang(count); };
    if (has("truncate")) return [](FaultQueue &queue, int count) { queue.truncate(count); };
    if (has("dropBeforeAnswer")) return [](FaultQueue &queue, int count) { queue.dropBeforeAnswer(count); };
    if (has("ok")) return [](FaultQueue &queue, int count) { queue.thenOk(count); };
    return {};
}

Step stepOf(const QJsonObject &object) {
    if (object.value(QStringLiteral("clear")).toBool()) return [](ServiceContext &context) { context.faults.clear(); };
    if (object.value(QStringLiteral("release")).toBool())
        return [](ServiceContext &context) { context.gate.release(); };
    if (const auto delay = object.value(QStringLiteral("delay")); delay.isDouble() && delay.toInteger() >= 0)
        return [ms = delay.toInteger()](ServiceContext &context) { context.delay = ms; };
    const QByteArray operation = object.value(QStringLiteral("on")).toString().toUtf8();
    const int count = object.value(QStringLiteral("count")).toInt(1);
    const auto fault = faultOf(object);
    if (operation.isEmpty() || !fault || count < 1 || count > MostRequests) return {};
    return [=](ServiceContext &context) { fault(context.faults.on(operation), count); };
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
