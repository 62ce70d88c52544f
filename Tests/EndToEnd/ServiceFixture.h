// A test on the whole way; shows the service's log where it fails.
#pragma once

#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/Printing.h"

#include <gtest/gtest.h>

#include <csignal>

namespace korvane::test {

class ServiceTest : public ::testing::Test, public ServiceHarness {
public:
    void TearDown() override {
        killService(SIGTERM);
        EXPECT_FALSE(log().contains(QStringLiteral("Sanitizer")));
        if (HasFailure()) printf("service log:\n%s\n", log().toLocal8Bit().constData());
    }
};

} // namespace korvane::test
