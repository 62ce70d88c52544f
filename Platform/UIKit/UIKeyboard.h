// The keyboard in front of a text, as far as a model needs it.
#pragma once

#include <functional>
#include <memory>

namespace korvane {

// Made by the front end that has an input method. Thread: main.
class UIKeyboard {
public:
    // Null where no front end has one.
    static std::shared_ptr<UIKeyboard> activeKeyboard();
    static void setActiveKeyboard(std::weak_ptr<UIKeyboard> keyboard);

    // commit: puts the text that is still being composed into the text under edit.
    explicit UIKeyboard(std::function<void()> commit) : _commit(std::move(commit)) {}

    // What is being composed is taken as it stands.
    void acceptAutocorrection() const { _commit(); }

private:
    std::function<void()> _commit;
};

} // namespace korvane
