#include "modelling/frmExtrude.h"

#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "geometry/NumberText.h"
#include "modelling/ExtrusionPreviewTarget.h"
#include "modelling/ExtrusionSteps.h"
#include "modelling/frmAdditionalExtrusions.h"
#include "platform/Canvas.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace {

const char* const inputTitle = "Invalid Extrusion Input";
const char* const unextrudable =
    "Profile is of un-extrudable shape.  Please redraw or alter profile.";
constexpr int32_t cyan = 16776960;

Vector3D difference(const PointRecord& p, const PointRecord& q) {
    Vector3D v;
    v.initializeXYZ(p.coord.x - q.coord.x, p.coord.y - q.coord.y, p.coord.z - q.coord.z);
    return v;
}

} // namespace

frmExtrude::frmExtrude(ModalHost& dialogs, ColorChooser& colors, ExtrusionPreviewTarget& preview)
    : surface(colors), dialogs_(dialogs), preview_(preview) {
    addControl("fraExtrusionLength", fraExtrusionLength);
    addControl("txtExtrusionLength", txtExtrusionLength);
    addControl("fraIncrements", fraIncrements);
    addControl("txtIncrements", txtIncrements);
    addControl("fraOrientation", fraOrientation);
    for (size_t Index = 0; Index < optExtrude.size(); ++Index) {
        addControl("optExtrude(" + std::to_string(Index) + ")", optExtrude[Index],
                   [this, Index] { optExtrude_Click(Index); });
    }
    addControl("chkCapEnds", chkCapEnds);
    addControl("fraTransformations", fraTransformations);
    addControl("List1", List1);
    addControl("cmdAddTrans", cmdAddTrans, [this] { cmdAddTrans_Click(); });
    addControl("cmdRemoveTrans", cmdRemoveTrans, [this] { cmdRemoveTrans_Click(); });
    addControl("cmdMoveUpTrans", cmdMoveUpTrans, [this] { cmdMoveUpTrans_Click(); });
    addControl("cmdMoveDownTrans", cmdMoveDownTrans, [this] { cmdMoveDownTrans_Click(); });
    addControl("fraSurface", fraSurface);
    surface.addControls(
        [this](const std::string& name, auto& state, std::function<void()> handler) {
            addControl(name, state, std::move(handler));
        });
    addControl("mnuExtrude", mnuExtrude, [this] { mnuExtrude_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
    addControl("mnuPreview", mnuPreview, [this] { mnuPreview_Click(); });
    Form_Load();
}

void frmExtrude::Form_Load() {
    surface.reset();
}

void frmExtrude::initialize(const std::shared_ptr<Profile>& profile) {
    profile_ = profile;
    result_.reset();
    if (!profile_) {
        showMessage("No profile selected for extrusion.  Please select a profile using the "
                    "profile selector tool.  Now exitting extrusion",
                    "Extrusion Error", MessageIcon::Information);
        close();
        return;
    }
    // The normal is that of the corner at the first point, between the first edge and the
    // closing edge, so its side follows the profile's orientation.
    const int32_t count = profile_->getPointCount();
    const auto P1 = profile_->getCPoint(1);
    const auto P2 = profile_->getCPoint(2);
    const auto Pl = profile_->getCPoint(count - 1);
    if (P1 && P2 && Pl) {
        const PointRecord origin = P1->getRecord();
        normal_ = difference(P2->getRecord(), origin).cross(difference(Pl->getRecord(), origin));
        normal_.normalize();
    }
    float x;
    float y;
    float z;
    normal_.getXYZ(x, y, z);
    // Parallel edges, or components the conversions lost, leave no direction to sweep along.
    const bool hasDirection = (x != 0.0f || y != 0.0f || z != 0.0f) && std::isfinite(x) &&
                              std::isfinite(y) && std::isfinite(z);
    if (!(P1 && P2 && Pl) || !hasDirection) {
        showMessage(unextrudable, "Unable to Extrude Profile", MessageIcon::Information);
        close();
    }
}

void frmExtrude::refuse(TextBoxState& box, const std::string& message) {
    showMessage(message, inputTitle, MessageIcon::Information);
    txtExtrusionLength.Focused = false;
    txtIncrements.Focused = false;
    box.Text.clear();
    box.Focused = true;
}

std::vector<Point4> frmExtrude::sweptCurve(const Vector3D& E) const {
    std::vector<Point4> curve;
    for (const auto& point : profile_->getPoints()) {
        curve.push_back(point->getRecord().coord);
    }
    if (optExtrude[1].Value) {
        // Out sweeps the reversed curve, so that the faces still turn outwards.
        std::reverse(curve.begin(), curve.end());
    } else if (optExtrude[2].Value) {
        // Split starts half the extrusion vector behind the profile's plane.
        Matrix4 M;
        M3Ops::setTranslation(M, E.getX() / -2.0f, E.getY() / -2.0f, E.getZ() / -2.0f);
        for (Point4& point : curve) {
            M3Ops::transformPoint(point, M, point);
        }
    }
    return curve;
}

void frmExtrude::mnuExtrude_Click() {
    if (!profile_) {
        return;
    }
    const std::optional<float> L = NumberText::parseSingle(txtExtrusionLength.Text);
    if (!L) {
        refuse(txtExtrusionLength, "Invalid Extrusion Length.  Value must be present and numeric.");
        return;
    }
    const std::optional<float> n = NumberText::parseSingle(txtIncrements.Text);
    if (!n || *n < 1.0f) {
        refuse(txtIncrements, "Invalid Extrusion Increment.  Value must be present and greater "
                              "than or equal to 1.");
        return;
    }

    // In and Out sweep to the normal's side and away from it whatever the sign of the
    // length; Split takes the length as it is.
    Vector3D E = normal_;
    E.setAmplitude(optExtrude[0].Value ? std::fabs(*L) : optExtrude[1].Value ? -std::fabs(*L) : *L);
    float x;
    float y;
    float z;
    E.getXYZ(x, y, z);
    std::vector<Matrix4> step(1);
    M3Ops::setTranslation(step.front(), x / *n, y / *n, z / *n);
    for (size_t i = 0; i < List1.items.size(); ++i) {
        if (!ExtrusionSteps::appendEntry(step, List1.items[i], *n)) {
            List1.ListIndex = static_cast<int>(i);
            showMessage("Invalid Additional Transformation " + List1.items[i] +
                            ".  Its three values must be present and numeric.",
                        inputTitle, MessageIcon::Information);
            return;
        }
    }
    const int32_t r = ExtrusionSteps::repeatCount(*n);
    if (static_cast<double>(step.size()) * (r + 1.0) > ExtrusionSteps::maxMatrices) {
        refuse(txtIncrements, "Too many extrusion steps.  Subdivisions times the matrices of one "
                              "step may not exceed " +
                                  std::to_string(ExtrusionSteps::maxMatrices) + ".");
        return;
    }
    // Each matrix of the sweep adds two points and two faces for every point of the curve,
    // the faces one pair fewer, and the caps add two.
    const int64_t matrices = static_cast<int64_t>(step.size()) * (r + int64_t{1});
    const int64_t curvePoints = profile_->getPointCount();
    const int64_t faces = 2 * (curvePoints - 1) * matrices + (chkCapEnds.Value ? 2 : 0);
    const int64_t points = 2 * curvePoints * matrices;
    for (const auto& [count, what] : {std::pair{faces, "faces"}, std::pair{points, "points"}}) {
        if (count > maxPointsOrFaces) {
            refuse(txtIncrements, "The extrusion would have " + std::to_string(count) + " " + what +
                                      "; at most " + std::to_string(maxPointsOrFaces) +
                                      " can be made.");
            return;
        }
    }

    normal_ = E;
    result_ = std::make_shared<Transformed3d>();
    for (const Point4& point : sweptCurve(E)) {
        result_->AddCurvePoint(point.x, point.y, point.z);
    }
    ExtrusionSteps::setRunningProducts(*result_, step, r);
    result_->Transform(chkCapEnds.Value);

    // Unused surface groups keep the middle of their range.
    surface.applyTo(*result_, true);
    close();
}

void frmExtrude::mnuCancel_Click() {
    close();
}

void frmExtrude::mnuPreview_Click() {
    if (!profile_ || profile_->getPointCount() == 0) {
        return;
    }
    float sx = 0.0f;
    float sy = 0.0f;
    float sz = 0.0f;
    for (const auto& point : profile_->getPoints()) {
        const Point4 p = point->getRecord().coord;
        sx += p.x;
        sy += p.y;
        sz += p.z;
    }
    const auto count = static_cast<float>(profile_->getPointCount());
    int32_t lower = 0;
    int32_t upper = -1;
    preview_.getPicOrthoBounds(lower, upper);
    for (int32_t index = lower; index <= upper; ++index) {
        Canvas* pic = preview_.getPicOrtho(index);
        const std::optional<viewInfo> view = preview_.getViewInfo(index + 1);
        if (pic != nullptr && view) {
            arrow_.draw(*pic, &normal_, *view, sx / count, sy / count, sz / count, cyan, DrawSolid);
            pic->refresh();
        }
    }
}

void frmExtrude::optExtrude_Click(size_t Index) {
    for (size_t other = 0; other < optExtrude.size(); ++other) {
        optExtrude[other].Value = other == Index;
    }
}

void frmExtrude::cmdAddTrans_Click() {
    frmAdditionalExtrusions picker;
    dialogs_.showModal(picker);
    if (!picker.getFunction().empty()) {
        List1.items.push_back(picker.getFunction());
    }
}

bool frmExtrude::hasSelectedEntry() const {
    return List1.ListIndex >= 0 && List1.ListIndex < static_cast<int>(List1.items.size());
}

void frmExtrude::cmdRemoveTrans_Click() {
    if (!hasSelectedEntry()) {
        return;
    }
    List1.items.erase(List1.items.begin() + List1.ListIndex);
    List1.ListIndex = -1;
}

void frmExtrude::moveSelectedEntry(int step) {
    if (!hasSelectedEntry()) {
        return;
    }
    const int count = static_cast<int>(List1.items.size());
    const int from = List1.ListIndex;
    const int to = (from + step + count) % count;
    std::string entry = std::move(List1.items[static_cast<size_t>(from)]);
    List1.items.erase(List1.items.begin() + from);
    List1.items.insert(List1.items.begin() + to, std::move(entry));
    List1.ListIndex = to;
}

void frmExtrude::cmdMoveUpTrans_Click() {
    moveSelectedEntry(-1);
}

void frmExtrude::cmdMoveDownTrans_Click() {
    moveSelectedEntry(1);
}
