#include "geometry/CPoint3D.h"
#include "modelling/EmptyPreviewTarget.h"
#include "modelling/frmExtrude.h"
#include "platform/ColorChooser.h"
#include "platform/ModalHost.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

class NoDialogs : public ModalHost {
public:
    void showModal(ModalDialog&) override {}
};

class NoColors : public ColorChooser {
public:
    int32_t chooseColor() override { return -1; }
};

// A closed 64-corner star in the plane z = 0.
std::shared_ptr<Profile> star() {
    auto profile = std::make_shared<Profile>();
    const double twoPi = 6.28318530717958;
    for (int i = 0; i < 64; ++i) {
        const double r = i % 2 == 0 ? 2.0 : 1.2;
        PointRecord record;
        record.coord = Point4{static_cast<float>(r * std::cos(twoPi * i / 64)),
                              static_cast<float>(r * std::sin(twoPi * i / 64)), 0.0f, 1.0f};
        profile->addPointRecord(record);
    }
    profile->addCPoint(profile->getCPoint(1));
    return profile;
}

// The whole Extrude command of the dialog: 400 subdivisions, 400 segments of 64 edges,
// 51,200 side triangles and two caps.
void BM_ExtrudeStar400(benchmark::State& state) {
    NoDialogs dialogs;
    NoColors colors;
    EmptyPreviewTarget viewports;
    const auto profile = star();
    int32_t faces = 0;
    for (auto _ : state) {
        frmExtrude form(dialogs, colors, viewports);
        form.initialize(profile);
        form.typeText("txtExtrusionLength", "10");
        form.typeText("txtIncrements", "400");
        form.press("mnuExtrude");
        faces = form.getExtrusion()->getSolid()->GetFaceNum();
        benchmark::DoNotOptimize(faces);
    }
    state.counters["faces"] = faces;
}
BENCHMARK(BM_ExtrudeStar400)->Unit(benchmark::kMillisecond);

} // namespace
