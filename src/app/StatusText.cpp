#include "app/StatusText.h"

#include "interaction/ClickHandleFaceSelector.h"
#include "interaction/ClickHandleProfile.h"
#include "interaction/ClickHandleProfileSelector.h"
#include "interaction/ClickHandleRotate.h"
#include "interaction/ClickHandleScroll.h"
#include "interaction/ClickHandleSolidSelector.h"
#include "interaction/ClickHandleWorkPlaneSelector.h"
#include "interaction/ClickHandleZoom.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <cmath>
#include <cstdio>
#include <typeindex>
#include <unordered_map>

namespace {

// Thousands separated by commas: 51,202.
std::string grouped(size_t n) {
    std::string digits = std::to_string(n);
    for (size_t at = digits.size(); at > 3; at -= 3) {
        digits.insert(at - 3, ",");
    }
    return digits;
}

std::string counted(size_t n, const char* one, const char* many) {
    return grouped(n) + " " + (n == 1 ? one : many);
}

std::string twoDecimals(float value) {
    // A value that rounds to zero is shown as 0.00, whatever its sign.
    const double shown = std::fabs(value) < 0.005f ? 0.0 : static_cast<double>(value);
    char text[64];
    std::snprintf(text, sizeof text, "%.2f", shown);
    return text;
}

} // namespace

std::string StatusText::modeHint(const ClickHandleNothing& mode) {
    static const std::unordered_map<std::type_index, std::string> hints{
        {typeid(ClickHandleRotate), "Rotate: drag with the left button to turn the view"},
        {typeid(ClickHandleScroll), "Scroll (pan): drag with the left button to move the view"},
        {typeid(ClickHandleZoom), "Zoom: drag up or down with the left button to zoom"},
        {typeid(ClickHandleSolidSelector), "Solid Selector: click a solid to select it"},
        {typeid(ClickHandleFaceSelector), "Face Selector: click a face to select it"},
        {typeid(ClickHandleWorkPlaneSelector),
         "WorkPlane Selector: click a workplane to select it"},
        {typeid(ClickHandleProfileSelector), "Profile Selector: click a profile to select it"},
        {typeid(ClickHandleProfile), "Profile: click to add a point, C or middle button closes"},
    };
    const auto found = hints.find(typeid(mode));
    return found != hints.end() ? found->second
                                : "No mouse mode: choose one under View > Movement or Selectors";
}

std::string StatusText::pointerPosition(float x, float y, float z) {
    return "x " + twoDecimals(x) + "  y " + twoDecimals(y) + "  z " + twoDecimals(z);
}

std::string StatusText::solidsAndFaces(const ObjectList& solids) {
    size_t faces = 0;
    for (const auto& object : solids) {
        const auto solid = object->getSolid();
        faces += solid ? static_cast<size_t>(solid->GetFaceNum()) : 0;
    }
    return counted(solids.size(), "solid", "solids") + ", " + counted(faces, "face", "faces");
}
