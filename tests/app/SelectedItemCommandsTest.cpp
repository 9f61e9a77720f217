#include "app/SelectedItemCommands.h"

#include "geometry/ArithmeticError.h"
#include "geometry/CPoint3D.h"
#include "modelling/frmProfileProperty.h"
#include "modelling/frmWorkPlaneProperty.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

// A closed square standing on a corner in the plane z = 0; its last point is its first
// point object again.
std::shared_ptr<Profile> square() {
    auto profile = std::make_shared<Profile>();
    for (const Point4& corner :
         {Point4{0, 0, 0, 1}, Point4{1, 1, 0, 1}, Point4{0, 2, 0, 1}, Point4{-1, 1, 0, 1}}) {
        auto point = std::make_shared<CPoint3D>();
        PointRecord record;
        record.coord = corner;
        point->setRecord(record);
        profile->addCPoint(point);
    }
    profile->addCPoint(profile->getCPoint(1));
    return profile;
}

std::string nodeText(TestWindow& w, const std::string& key) {
    const auto node = w.form.getSceneTree().findSceneNode(key);
    return node ? node->text : "(none)";
}

} // namespace

TEST(SelectedItemCommands, ExtrudeRefusesWithoutASelectedProfile) {
    TestWindow w;
    w.choose({"&Create", "&Extrusion"});
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Unable to extrude since no profiles were selected.  Please select profile before "
              "extruding.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Extrusion Error");
    EXPECT_EQ(w.prompts.messages()[0].icon, MessageIcon::Information);
    EXPECT_TRUE(w.dialogs.shown().empty());
}

TEST(SelectedItemCommands, ExtrudeMakesASolidOfEverySelectedProfileNotCancelled) {
    TestWindow w;
    w.form.setSelectedProfiles({square(), square(), square()});
    w.dialogs.queueDialog({Host::press("mnuExtrude")});
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.dialogs.queueDialog({Host::type("txtExtrusionLength", "2"), Host::press("mnuExtrude")});
    w.form.Form_KeyDown(69);
    EXPECT_EQ(w.dialogs.shown().size(), 3u);
    ASSERT_EQ(w.form.getDocument().solids.size(), 2u);
    EXPECT_EQ(nodeText(w, "s1"), "Solid 1");
    EXPECT_EQ(nodeText(w, "s2"), "Solid 2");
    EXPECT_EQ(std::any_cast<std::shared_ptr<Transformed3d>>(
                  w.form.getSceneTree().findSceneNode("s2")->tag),
              w.form.getDocument().solids[1]);
    EXPECT_NE(w.form.getSceneTree().findSceneNode("f1-s2"), nullptr); // faces keyed by position
    EXPECT_TRUE(w.prompts.messages().empty());
}

TEST(SelectedItemCommands, AnErrorWhileExtrudingEndsTheCommandKeepingEarlierSolids) {
    TestWindow w;
    w.form.setSelectedProfiles({square(), square(), square()});
    w.dialogs.queueDialog({Host::press("mnuExtrude")});
    w.dialogs.queueDialog({[](ModalDialog&) { throw ArithmeticError("overflow"); }});
    w.popup(3, {"&Extrude"});
    EXPECT_EQ(w.dialogs.shown().size(), 2u); // the third profile is not offered
    EXPECT_EQ(w.form.getDocument().solids.size(), 1u);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "Profile is of un-extrudable shape.  Please redraw or alter profile.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Unable to Extrude Profile");
    EXPECT_EQ(w.prompts.messages()[0].icon, MessageIcon::Information);
}

TEST(SelectedItemCommands, PropertiesOpenFacesSolidsWorkplanesProfilesThenRedraw) {
    TestWindow w;
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(makeCube(0.5f));
    auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(3, 0, 0, 0, 0);
    const auto profile = square();
    w.form.getDocument().solids.push_back(object);
    w.form.getDocument().workPlanes.push_back(workPlane);
    w.form.getDocument().profiles.push_back(profile);
    // Set in the reverse of the order the dialogs open in.
    w.form.setSelectedProfiles({profile});
    w.form.setSelectedWorkplanes({workPlane});
    w.form.setSelectedSolids({object});
    w.form.setSelectedFaces({object->getFaces().front()});
    std::string size;
    size_t listed = 0;
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.dialogs.queueDialog({Host::press("mnuCancel")});
    w.dialogs.queueDialog({[&size](ModalDialog& dialog) {
                               size = static_cast<frmWorkPlaneProperty&>(dialog).Text1.Text;
                           },
                           Host::press("mnuCancel")});
    w.dialogs.queueDialog(
        {[&w, &listed](ModalDialog& dialog) {
             listed = static_cast<frmProfileProperty&>(dialog).listPointIndex.items.size();
             w.canvases[3].forget();
         },
         Host::press("mnuCancel")});
    w.form.picOrtho_MouseMove(3, 0, 0, 5, 5); // events bring the menus up to date
    w.choose({"&Selectors", "&Property <enter>"});
    EXPECT_EQ(w.dialogs.shown(),
              (std::vector<std::string>{"Face Properties", "Solid Properties",
                                        "Workplane Properties", "Profile Properties"}));
    EXPECT_EQ(size, "3");
    EXPECT_EQ(listed, 5u);
    EXPECT_FALSE(w.canvases[3].calls().empty()); // redrawn after the last dialog

    for (int i = 0; i < 4; ++i) {
        w.dialogs.queueDialog({Host::press("mnuCancel")});
    }
    w.form.Form_KeyDown(13);
    EXPECT_EQ(w.dialogs.shown().size(), 8u);
}
