// The seed of a random test.
#pragma once

#include <QByteArray>
#include <QRandomGenerator>

#include <cstdio>

namespace korvane::test {

// Printed, and taken from KORVANE_TEST_SEED to replay a run.
inline quint32 seedOfRun() {
    const QByteArray given = qgetenv("KORVANE_TEST_SEED");
    const quint32 seed = given.isEmpty() ? QRandomGenerator::global()->generate() : given.toUInt();
    printf("seed %u (replay with KORVANE_TEST_SEED)\n", seed);
    return seed;
}

// How often to do what a test does in a short and in a long form: scripts/soak.sh sets the variable for the long one.
inline int repetitions(const char *variable, int normally) {
    const int given = qEnvironmentVariableIntValue(variable);
    return given > 0 ? given : normally;
}

} // namespace korvane::test
