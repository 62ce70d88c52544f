// A JSON array on standard output.
#pragma once

#include "CommandLine/Output.h"

#include <utility>

namespace korvane {

// Writes the start, each element as it is added, and at the end of its life the end.
class JSONArray {
public:
    JSONArray() { Output::raw("["); }
    ~JSONArray() { Output::raw("\n]\n"); }
    JSONArray(const JSONArray &) = delete;
    JSONArray &operator=(const JSONArray &) = delete;

    void add(const QByteArray &json) { Output::raw((std::exchange(_isEmpty, false) ? "\n" : ",\n") + json); }

private:
    bool _isEmpty = true;
};

} // namespace korvane
