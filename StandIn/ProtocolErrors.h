// The requests that no correct client sends, kept from run to run.
#pragma once

#include "StandIn/StateJournal.h"

#include <QStringList>

#include <mutex>

namespace standin {

// Thread: any.
class ProtocolErrors {
public:
    bool open(const QString &folder, QString *error);
    // One line each: the request and what is wrong with it.
    void add(const QByteArray &request, const QByteArray &problem);
    QStringList all() const;

private:
    mutable std::mutex _mutex;
    StateJournal _journal;
    QStringList _errors;
};

} // namespace standin
