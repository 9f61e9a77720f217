#include "app/RememberedSettings.h"

#include "app/MainMenu.h"
#include "app/MouseDispatch.h"
#include "app/ViewportSet.h"
#include "geometry/Rounding.h"
#include "platform/SettingsStore.h"

#include <string>

namespace {

const std::string rememberKey = "RememberSettings";

// The menu items whose check marks are remembered as they are: each is a switch read from its
// check mark. One more remembered switch is one more name here.
constexpr const char* rememberedChecks[] = {
    "mnuBackfaceRemoval",
    "mnuWireframe",
    "mnuPopupBackfaceRemoval",
    "mnuPopupWireFrame",
    "mnuGrid",
    "mnuZeroAxes",
    "mnuReferenceAxes",
    "mnuDepthBufferedPictures",
};

// The sensitivity is a whole step of the dialog's scroll bar, 1 to 1000, kept as that
// step so that it comes back bit for bit.
constexpr int slowestStep = 1000;

std::string viewKey(int number, const char* what) {
    return "View" + std::to_string(number) + "/" + what;
}

std::optional<int> inRange(std::optional<int> value, int low, int high) {
    return value && *value >= low && *value <= high ? value : std::nullopt;
}

} // namespace

RememberedSettings::RememberedSettings(SettingsStore& store, MainMenu& menus,
                                       ViewportSet& viewports, MouseDispatch& mouse)
    : store_(store), menus_(menus), viewports_(viewports), mouse_(mouse) {
    MenuItem& item = menus_.item("mnuRememberSettings");
    item.setCommand([this, &item] {
        item.setChecked(!item.isChecked());
        store_.setBool(rememberKey, item.isChecked());
    });
}

std::optional<WindowGeometry> RememberedSettings::restore() {
    const bool on = store_.getBool(rememberKey).value_or(false);
    menus_.item("mnuRememberSettings").setChecked(on);
    if (!on) {
        return std::nullopt;
    }
    if (const auto layout = store_.getInt("Viewports/Layout"); layout == 1 || layout == 4) {
        viewports_.viewportLayout = *layout;
    }
    for (int number = 1; number <= 4; ++number) {
        ViewSpecs& record = viewports_.viewSpecs(number);
        if (const auto projection = inRange(store_.getInt(viewKey(number, "Projection")), 0, 1)) {
            record.ProjectionType = *projection;
        }
        record.HideSurfaces =
            store_.getBool(viewKey(number, "HideSurfaces")).value_or(record.HideSurfaces);
        record.wireFrame = store_.getBool(viewKey(number, "Wireframe")).value_or(record.wireFrame);
    }
    for (const char* name : rememberedChecks) {
        MenuItem& item = menus_.item(name);
        item.setChecked(store_.getBool(std::string("Menu/") + name).value_or(item.isChecked()));
    }
    if (const auto step = inRange(store_.getInt("Mouse/SensitivityStep"), 1, slowestStep)) {
        mouse_.setMouseSensivity(1.0f / static_cast<float>(*step));
    }
    const auto x = inRange(store_.getInt("Window/X"), -32768, 32767);
    const auto y = inRange(store_.getInt("Window/Y"), -32768, 32767);
    const auto width = inRange(store_.getInt("Window/Width"), 100, 32767);
    const auto height = inRange(store_.getInt("Window/Height"), 100, 32767);
    if (!x || !y || !width || !height) {
        return std::nullopt;
    }
    return WindowGeometry{*x, *y, *width, *height};
}

void RememberedSettings::save(const WindowGeometry& window) {
    if (!menus_.item("mnuRememberSettings").isChecked()) {
        return;
    }
    store_.setInt("Viewports/Layout", viewports_.viewportLayout);
    for (int number = 1; number <= 4; ++number) {
        const ViewSpecs& record = viewports_.viewSpecs(number);
        store_.setInt(viewKey(number, "Projection"), record.ProjectionType);
        store_.setBool(viewKey(number, "HideSurfaces"), record.HideSurfaces);
        store_.setBool(viewKey(number, "Wireframe"), record.wireFrame);
    }
    for (const char* name : rememberedChecks) {
        store_.setBool(std::string("Menu/") + name, menus_.item(name).isChecked());
    }
    const int step = Rounding::toInt32(1.0f / mouse_.getMouseSensivity());
    if (step >= 1 && step <= slowestStep) {
        store_.setInt("Mouse/SensitivityStep", step);
    }
    store_.setInt("Window/X", window.x);
    store_.setInt("Window/Y", window.y);
    store_.setInt("Window/Width", window.width);
    store_.setInt("Window/Height", window.height);
}
