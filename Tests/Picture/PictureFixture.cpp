// Runs of korvane-picture, and what is expected to be seen in pictures.
#include "Tests/Picture/PictureFixture.h"

#include "Platform/Foundation/ChildProcess.h"
#include "Platform/Foundation/FileDescriptor.h"

#include <QTemporaryFile>

#include <cstdlib>

namespace korvane::test {

PictureRun runPicture(const QByteArrayList &arguments, const QByteArray &inputPath, int outputDescriptor) {
    const FileDescriptor input(::open(inputPath.constData(), O_RDONLY | O_CLOEXEC));
    QTemporaryFile output;
    output.open();
    ChildProcess program(KORVANE_PICTURE_PROGRAM, arguments);
    program.setStandardInput(input.get());
    program.setStandardOutput(outputDescriptor >= 0 ? outputDescriptor : output.handle());
    const auto result = program.run();
    if (!result || result->ending != ChildProcess::Exited) return {};
    output.seek(0);
    return {result->status, output.readAll(), result->standardError};
}

QString differenceOf(const QImage &picture, const Quarters &expected, int tolerance) {
    for (size_t i = 0; i < expected.size(); ++i) {
        const int x = picture.width() * (i % 2 == 0 ? 1 : 3) / 4;
        const int y = picture.height() * (i < 2 ? 1 : 3) / 4;
        const QRgb seen = picture.pixel(x, y);
        const auto far = [&](int (*channel)(QRgb)) {
            return std::abs(channel(seen) - channel(expected[i])) > tolerance;
        };
        if (far(qRed) || far(qGreen) || far(qBlue) || far(qAlpha))
            return QStringLiteral("quarter %1 is %2 instead of %3").arg(i).arg(seen, 8, 16).arg(expected[i], 8, 16);
    }
    return {};
}

} // namespace korvane::test
