#include "StandIn/Weather.h"

namespace standin {

namespace {

// SplitMix64: a few draws from each of very many seeds.
class Dice {
public:
    explicit Dice(quint64 seed) : _state(seed) {}

    quint64 next() {
        quint64 mixed = _state += 0x9e3779b97f4a7c15;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
        return mixed ^ (mixed >> 31);
    }

    bool falls(double probability) { return double(next() >> 11) * 0x1p-53 < probability; }
    qint64 upTo(qint64 most) { return qint64(next() % (quint64(most) + 1)); }

private:
    quint64 _state;
};

quint64 seedOf(quint64 seed, const QByteArray &operation, quint64 index) {
    quint64 mixed = Dice(seed).next();
    for (const char character : operation)
        mixed = Dice(mixed ^ quint64(quint8(character))).next();
    return mixed ^ index;
}

} // namespace

Fault Weather::at(const QByteArray &operation, quint64 index, qint64 bodyBytes) const {
    if (!operations.isEmpty() && !operations.contains(operation)) return {};
    Dice dice(seedOf(seed, operation, index));
    const bool isChunk = operation == "chunk";
    const bool canBreak = isChunk || operation == "verify" || operation == "upload";
    Fault fault;
    if (dice.falls(error))
        fault = Fault::errorPage(503);
    else if (dice.falls(reset) && canBreak)
        fault = {.kind = Fault::Kind::DropAfterBytes, .bytes = dice.upTo(bodyBytes)};
    else if (dice.falls(loseTail) && isChunk && bodyBytes > 0)
        fault = {.kind = Fault::Kind::StoreOnly, .bytes = dice.upTo(bodyBytes - 1)};
    fault.delay = dice.upTo(delay);
    return fault;
}

} // namespace standin
