// What every test of the library uses.
#pragma once

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Printing.h"
#include "Tests/Support/TemporaryHome.h"
#include "Tests/Support/WaitFor.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
