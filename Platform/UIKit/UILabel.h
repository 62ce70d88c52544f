// A line of text.
#pragma once

#include "Platform/UIKit/UIView.h"

#include <QString>

#include <optional>

namespace korvane {

class UILabel : public UIView {
public:
    const std::optional<QString> &text() const { return _text; }
    void setText(const std::optional<QString> &text) { change(_text, text); }

private:
    std::optional<QString> _text;
};

} // namespace korvane
