// Shows how uploads go on.
#include "CommandLine/ProgressView.h"

#include "CommandLine/Output.h"
#include "CommandLine/PlainView.h"
#include "CommandLine/SilentView.h"
#include "CommandLine/TerminalView.h"

namespace korvane {

std::unique_ptr<ProgressView> ProgressView::onStream(FILE *stream, bool plainLines) {
    if (Output::isTerminal(stream)) return std::make_unique<TerminalView>(stream);
    if (plainLines) return std::make_unique<PlainView>(stream);
    return std::make_unique<SilentView>();
}

} // namespace korvane
