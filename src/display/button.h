// A push button. A two-state button keeps its state in its tag (N while off, N + 1000 while on) and shows it by its
// bezel.
#pragma once

#include "display/control.h"
#include "display/image.h"

namespace corvane {

inline constexpr int onTagOffset = 1000;

class Button : public Control {
public:
    explicit Button(const Outlet& outlet) : Control(outlet), title_(outlet.title) {}

    const std::string& title() const { return title_; }
    void setTitle(std::string_view title) { assignValue(title_, title); }

    Color bezelColor() const { return bezelColor_; }
    void setBezelColor(Color color) { assignValue(bezelColor_, color); }

    Image image() const { return image_; }
    void setImage(Image image) { assign(image_, image); }

    // What a press does. A button without an action only shows its title.
    std::function<void(Button&)> action;
    void performClick() {
        if (available() && action) action(*this);
    }

private:
    std::string title_;
    Color bezelColor_ = Color::none;
    Image image_ = Image::none;
};

}  // namespace corvane
