// What the Vimeo upload service can be asked for.
#include "Korvane/VimeoRemoteSessionProtocol.h"

namespace korvane {

const QString VimeoRemoteServiceName = QStringLiteral("com.zorvex.vimeo.xpc");

NSXPCInterface VimeoRemoteSessionProtocol::interface() {
    return {QStringLiteral("uploadPost"), NSXPCInterface::Record};
}

} // namespace korvane
