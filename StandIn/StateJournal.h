// The state's file: one JSON object a line, only ever appended to. A line that a crash cut short is forgotten.
#pragma once

#include <QFile>
#include <QJsonObject>
#include <QList>

namespace standin {

// Thread: one at a time.
class StateJournal {
public:
    // Reads all events and takes the file for this process; false with a reason when another process has it or it
    // cannot be written.
    bool open(const QString &path, QList<QJsonObject> *events, QString *error);
    bool append(const QJsonObject &event);

private:
    QFile _file;
};

} // namespace standin
