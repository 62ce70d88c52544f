// Text that a user edits, and who has the keyboard.
#include "Platform/UIKit/UITextField.h"
#include "Platform/UIKit/UITextView.h"
#include "Tests/Support/Testing.h"

using namespace korvane;

namespace {

struct Delegate : UITextFieldDelegate, UITextViewDelegate {
    bool allows = true;
    std::function<void()> whileAsked;
    std::function<void()> whileEnding;
    QStringList heard;

    bool textFieldShouldChangeCharactersInRange(const std::shared_ptr<UITextField> &field, NSRange range,
                                                const QString &replacement) override {
        heard.append(
            QStringLiteral("%1 %2+%3 %4").arg(field->text()).arg(range.location).arg(range.length).arg(replacement));
        if (whileAsked) whileAsked();
        return allows;
    }
    void textFieldDidEndEditing(const std::shared_ptr<UITextField> &field) override {
        heard.append(QStringLiteral("end ") + field->text());
        if (whileEnding) whileEnding();
    }
    bool textViewShouldChangeTextInRange(const std::shared_ptr<UITextView> &, NSRange, const QString &) override {
        return allows;
    }
    void textViewDidChange(const std::shared_ptr<UITextView> &view) override { heard.append(view->text()); }
};

struct TextInput : ::testing::Test {
    std::shared_ptr<UITextField> field = std::make_shared<UITextField>();
    std::shared_ptr<UITextField> other = std::make_shared<UITextField>();
    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();

    void SetUp() override {
        field->setDelegate(delegate);
        field->setText(QStringLiteral("abc"));
    }
};

} // namespace

TEST_F(TextInput, AChangeIsAskedForBeforeItIsMade) {
    EXPECT_TRUE(field->userReplacesCharacters({1, 1}, QStringLiteral("𝄞")));
    EXPECT_EQ(field->text(), QStringLiteral("a𝄞c"));
    EXPECT_TRUE(field->isFirstResponder());
    delegate->allows = false;
    EXPECT_FALSE(field->userReplacesCharacters({2, 99}, QStringLiteral("x")));
    EXPECT_EQ(field->text(), QStringLiteral("a𝄞c"));
    EXPECT_EQ(delegate->heard, (QStringList{QStringLiteral("abc 1+1 𝄞"), QStringLiteral("a𝄞c 2+2 x")}));

    const auto view = UITextView::initWithFrame({});
    view->setDelegate(delegate);
    EXPECT_FALSE(view->userReplacesText({0, 0}, QStringLiteral("x")));
    EXPECT_EQ(view->text(), QString());
    delegate->allows = true;
    EXPECT_TRUE(view->userReplacesText({5, 5}, QStringLiteral("x")));
    EXPECT_EQ(delegate->heard.last(), QStringLiteral("x"));
}

TEST_F(TextInput, TheKeyboardMovesOnAndTheFormerFieldHearsOfIt) {
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_TRUE(other->becomeFirstResponder());
    EXPECT_EQ(UIResponder::firstResponder(), other);
    EXPECT_EQ(delegate->heard, QStringList{QStringLiteral("end abc")});
    EXPECT_FALSE(std::make_shared<UIView>()->becomeFirstResponder());
    EXPECT_TRUE(field->resignFirstResponder()) << "it has nothing to give up";
    other.reset();
    EXPECT_FALSE(UIResponder::firstResponder());
}

TEST_F(TextInput, NobodyTakesTheKeyboardInTheMiddleOfAChange) {
    bool taken = true;
    delegate->whileAsked = [&] { taken = other->becomeFirstResponder(); };
    field->userReplacesCharacters({3, 0}, QStringLiteral("d"));
    EXPECT_FALSE(taken);
    EXPECT_EQ(field->text(), QStringLiteral("abcd"));
    EXPECT_TRUE(other->becomeFirstResponder());
}

TEST_F(TextInput, WhoTakesTheKeyboardBeforeItIsPassedOnKeepsIt) {
    const auto quick = std::make_shared<UITextField>();
    field->becomeFirstResponder();
    delegate->whileEnding = [&] { quick->becomeFirstResponder(); };
    EXPECT_FALSE(other->becomeFirstResponder());
    EXPECT_TRUE(quick->isFirstResponder());
}
