#include "interaction/ClickHandleNothing.h"

void ClickHandleNothing::getData(std::vector<std::any>&, std::vector<std::any>&) {}

MousePointer ClickHandleNothing::getMouseIcon() const {
    return MousePointer::Default;
}

std::optional<viewInfo> ClickHandleNothing::handleMouseMoveLeftClick(MouseEventArgs&) {
    return std::nullopt;
}

std::optional<viewInfo> ClickHandleNothing::handleLeftClick(MouseEventArgs&) {
    return std::nullopt;
}

std::optional<viewInfo> ClickHandleNothing::handleRightClick(MouseEventArgs&) {
    return std::nullopt;
}

std::optional<viewInfo> ClickHandleNothing::handleMiddleClick(MouseEventArgs&) {
    return std::nullopt;
}

std::optional<viewInfo> ClickHandleNothing::handleMouseMove(MouseEventArgs&) {
    return std::nullopt;
}

bool ClickHandleNothing::drawDatum(MouseEventArgs&) {
    return false;
}
