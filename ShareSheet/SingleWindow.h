// Sees to it that a window is open only once for each session.
#pragma once

#include <QObject>
#include <QVariantMap>

namespace korvane {

// Has a name on the session bus, where a second start finds the first. Thread: main.
class SingleWindow : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    // True where the window is to be opened here: nobody else has it open, nobody can tell, or who has it does not
    // answer. Waits for that answer for some seconds at most. Once.
    bool begin();

public Q_SLOTS:
    // Called by a second start.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
};

} // namespace korvane
