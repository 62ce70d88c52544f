// One option row of a share sheet.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace korvane {

// Thread: main.
class SLComposeSheetConfigurationItem {
public:
    static std::shared_ptr<SLComposeSheetConfigurationItem> init() {
        return std::make_shared<SLComposeSheetConfigurationItem>();
    }

    const std::optional<QString> &title() const { return _title; }
    void setTitle(const std::optional<QString> &title) { _set(_title, title); }
    const std::optional<QString> &value() const { return _value; }
    void setValue(const std::optional<QString> &value) { _set(_value, value); }

    // What a tap on the row does.
    const std::function<void()> &tapHandler() const { return _tapHandler; }
    void setTapHandler(std::function<void()> handler) { _tapHandler = std::move(handler); }

    // Hears each change of title and value. Of the sheet that shows the row.
    std::function<void()> changed;

private:
    void _set(std::optional<QString> &text, const std::optional<QString> &newText) {
        if (text == newText) return;
        text = newText;
        if (const auto told = changed) told(); // a copy: what is told may end in other rows
    }

    std::optional<QString> _title;
    std::optional<QString> _value;
    std::function<void()> _tapHandler;
};

} // namespace korvane
