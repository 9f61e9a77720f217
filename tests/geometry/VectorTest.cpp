#include "geometry/Vector3D.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

Vector3D fromXYZ(float x, float y, float z) {
    Vector3D v;
    v.initializeXYZ(x, y, z);
    return v;
}

void expectOneMessage(const ScriptedPrompts& prompts, const std::string& text,
                      const std::string& title) {
    ASSERT_EQ(prompts.messages().size(), 1u);
    const auto& m = prompts.messages()[0];
    EXPECT_EQ(std::tie(m.text, m.title, m.icon, m.buttons),
              std::tuple(text, title, MessageIcon::Critical, MessageButtons::Ok));
}

const std::string conversionText = "3D Vector Cartesian->Spherical uncalculatable!";
const std::string conversionTitle = "Vector3D Convertion Error";

} // namespace

TEST(Vector3D, VectorsAlongTheYAxisAndZeroAreReportedAndKeepTheirAngles) {
    for (const auto& [y, fields] :
         {std::pair(-3.0f, "3, 0.5, 0.25"), std::pair(0.0f, "0, 0.5, 0.25")}) {
        ScriptedPrompts prompts;
        Vector3D v;
        v.initializeAmpThetaPhi(1, 0.5f, 0.25f);
        v.initializeXYZ(0, y, 0);
        expectOneMessage(prompts, conversionText, conversionTitle);
        EXPECT_EQ(v.toString(), fields);
    }
    // x cross z points down the y axis: the right length, the angles of a new vector.
    ScriptedPrompts prompts;
    EXPECT_EQ(fromXYZ(1, 0, 0).cross(fromXYZ(0, 0, 1)).toString(), "1, 0, 0");
    expectOneMessage(prompts, conversionText, conversionTitle);
    // A zero vector cannot be normalised: reported, and left as it was.
    prompts.forget();
    Vector3D zero;
    zero.initializeAmpThetaPhi(0, 0.5f, 0.25f);
    zero.normalize();
    expectOneMessage(prompts, "Vector 3D Unable to Normalize!", "Vector3D Normalization Error");
    EXPECT_EQ(zero.toString(), "0, 0.5, 0.25");
}
