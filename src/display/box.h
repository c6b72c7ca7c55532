// A titled frame around controls.
#pragma once

#include "display/control.h"

namespace corvane {

class Box : public Control {
public:
    explicit Box(const Outlet& outlet) : Control(outlet), title_(outlet.title) {}

    const std::string& title() const { return title_; }
    void setTitle(std::string_view title) { assign(title_, title); }

    Color titleColor() const { return titleColor_; }  // none is the ordinary colour
    void setTitleColor(Color color) { assign(titleColor_, color); }

private:
    std::string title_;
    Color titleColor_ = Color::none;
};

}  // namespace corvane
