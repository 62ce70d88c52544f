// Shows nothing, for output that other programs read.
#pragma once

#include "CommandLine/ProgressView.h"

namespace korvane {

class SilentView : public ProgressView {
public:
    void stateChanged(const Upload &, const QString &) override {}
    void removed(const QString &, const QString &) override {}
    void note(const QString &) override {}
};

} // namespace korvane
