// What goes wrong, on purpose, with one request.
#pragma once

#include <QByteArray>

#include <optional>

namespace standin {

struct Fault {
    enum class Kind { None, Answer, DropAfterBytes, Hang, Truncate, DropBeforeAnswer, StoreOnly, ReportRange };
    Kind kind = Kind::None;
    int status = 0;                       // Answer
    QByteArray contentType = {};          // Answer
    QByteArray body = {};                 // Answer
    qint64 bytes = 0;                     // DropAfterBytes, StoreOnly
    std::optional<QByteArray> range = {}; // ReportRange; nothing: no such header
    qint64 delay = 0;                     // milliseconds before the answer, with every kind

    static Fault errorPage(int status);
};

} // namespace standin
