// Runs of korvane-picture, and what is expected to be seen in pictures.
#pragma once

#include "Tests/Support/Testing.h"

#include <QByteArrayList>
#include <QImage>

#include <array>

namespace korvane::test {

// What korvane-picture answered.
struct PictureRun {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};
// Its output goes to the descriptor if one is given.
PictureRun runPicture(const QByteArrayList &arguments, const QByteArray &inputPath, int outputDescriptor = -1);

// Colours of the four quarters: top left, top right, bottom left, bottom right.
using Quarters = std::array<QRgb, 4>;
inline constexpr Quarters usualQuarters = {0xffff0000, 0xff00ff00, 0xff0000ff, 0xffffffff};

// A text that names the first quarter whose middle differs by more than the tolerance in a channel; empty if none does.
QString differenceOf(const QImage &picture, const Quarters &expected, int tolerance = 3);

} // namespace korvane::test
