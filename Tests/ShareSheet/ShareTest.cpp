// Whole shares through the window, and what arrives.
#include "Tests/ShareSheet/SheetHarness.h"

using namespace korvane;
using namespace korvane::test;

namespace {

struct ShareWindow : SheetTest {};

} // namespace

TEST_F(ShareWindow, APhotoIsPostedByKeysAlone) {
    open({"flickr", photo("sea.jpg")});
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Title (optional)"));
    user->types(QStringLiteral("Am Meer"));
    ASSERT_TRUE(waitUntilPostable());
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0);
    EXPECT_FALSE(application->window()->isVisible());
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    EXPECT_EQ(standin::valueOf(server.photos().at(0).parameters, "title"), "Am Meer");
    EXPECT_EQ(server.photos().at(0).sha256, sha256Of(jpegOfSize(20'000)));
}
