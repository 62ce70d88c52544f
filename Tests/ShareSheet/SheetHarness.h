// The real window on the whole way: its sheet, the upload service, and the stand-in.
#pragma once

#include "ShareSheet/SheetApplication.h"
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/ShareSheet/WindowUser.h"

namespace korvane::test {

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

class SheetTest : public ServiceTest {
protected:
    standin::StandIn &server = flickr.server;
    std::unique_ptr<SheetApplication> application;
    std::optional<WindowUser> user;
    std::optional<int> status; // once the window is done

    // Opens the window as the program does, on a phone's screen, and waits for its first frame.
    void open(const QByteArrayList &arguments);
    // The same once more.
    void close();

    SheetModel &sheet() const { return *application->sheet(); }
    QByteArray photo(const char *name, quint32 seed = 1) { return home.file(name, jpegOfSize(20'000, seed)); }
    bool waitToRead(const char *words) {
        return waitFor([&] { return user->reads(text(words)); });
    }
    bool waitToReadNoMore(const char *words) {
        return waitFor([&] { return !user->reads(text(words)); });
    }
    bool waitForEnd() {
        return waitFor([this] { return status.has_value(); });
    }
    bool waitUntilPostable() {
        return waitFor([this] { return sheet().canPost(); });
    }

    void TearDown() override {
        close();
        ServiceTest::TearDown();
    }
};

inline void SheetTest::open(const QByteArrayList &arguments) {
    QString problem;
    const auto request = SheetRequest::parse(arguments, problem);
    ASSERT_TRUE(request) << qPrintable(problem);
    status.reset();
    application = std::make_unique<SheetApplication>();
    QObject::connect(application.get(), &SheetApplication::finished, [this](int ended) { status = ended; });
    ASSERT_TRUE(application->open(*request));
    QQuickWindow &window = *application->window();
    window.resize(360, 640);
    window.requestActivate();
    user.emplace(window);
    ASSERT_TRUE(waitFor([&] { return window.isActive() && window.isExposed(); }));
}

inline void SheetTest::close() {
    user.reset();
    application.reset();
}

} // namespace korvane::test
