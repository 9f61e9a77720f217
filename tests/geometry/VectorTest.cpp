#include "geometry/CPoint3D.h"
#include "geometry/Vector2D.h"
#include "geometry/Vector3D.h"
#include "support/ScriptedPrompts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

constexpr float tolerance = 1e-6f;
const auto halfPi = static_cast<float>(std::numbers::pi / 2);

void expectReads(const Vector3D& v, float x, float y, float z, float within = tolerance) {
    float vx;
    float vy;
    float vz;
    v.getXYZ(vx, vy, vz);
    EXPECT_NEAR(vx, x, within);
    EXPECT_NEAR(vy, y, within);
    EXPECT_NEAR(vz, z, within);
    EXPECT_EQ(v.getX(), vx);
    EXPECT_EQ(v.getY(), vy);
    EXPECT_EQ(v.getZ(), vz);
}

Vector3D fromXYZ(float x, float y, float z) {
    Vector3D v;
    v.initializeXYZ(x, y, z);
    return v;
}

void expectConversionMessage(const ScriptedPrompts& prompts) {
    ASSERT_EQ(prompts.messages().size(), 1u);
    const auto& message = prompts.messages()[0];
    EXPECT_EQ(message.text, "3D Vector Cartesian->Spherical uncalculatable!");
    EXPECT_EQ(message.title, "Vector3D Convertion Error");
    EXPECT_EQ(message.icon, MessageIcon::Critical);
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
}

} // namespace

TEST(Vector3D, CartesianRoundTripInEveryDirectionOffTheYAxis) {
    ScriptedPrompts prompts;
    const Vector3D a = fromXYZ(3, 0, 4);
    EXPECT_EQ(a.getAmplitude(), 5.0f);
    EXPECT_EQ(a.getPhi(), 0.0f);
    EXPECT_FLOAT_EQ(a.getTheta(), static_cast<float>(std::acos(0.6)));
    expectReads(a, 3, 0, 4, 1e-5f);

    const Vector3D b = fromXYZ(0, 0, -1);
    EXPECT_FLOAT_EQ(b.getTheta(), -halfPi);
    expectReads(b, 0, 0, -1);

    // On the x axis the arccosine fails and the arcsine takes over, silently.
    const Vector3D c = fromXYZ(-1, 0, 0);
    EXPECT_FLOAT_EQ(c.getTheta(), static_cast<float>(std::numbers::pi));
    expectReads(c, -1, 0, 0);
    const Vector3D d = fromXYZ(2, 0, 0);
    EXPECT_EQ(d.getTheta(), 0.0f);
    expectReads(d, 2, 0, 0);

    expectReads(fromXYZ(1, 2, -2), 1, 2, -2, 1e-5f);
    expectReads(fromXYZ(-1, -2, 2), -1, -2, 2, 1e-5f);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST(Vector3D, VerticalAndZeroVectorsKeepTheirOldAnglesAndAreReported) {
    {
        ScriptedPrompts prompts;
        const Vector3D v = fromXYZ(0, 2, 0);
        expectConversionMessage(prompts);
        EXPECT_EQ(v.getAmplitude(), 2.0f);
        EXPECT_EQ(v.getTheta(), 0.0f);
        EXPECT_EQ(v.getPhi(), 0.0f);
        expectReads(v, 2, 0, 0);
    }
    {
        ScriptedPrompts prompts;
        Vector3D v;
        v.initializeAmpThetaPhi(1, 0.5f, 0.25f);
        v.initializeXYZ(0, -3, 0);
        expectConversionMessage(prompts);
        EXPECT_EQ(v.getAmplitude(), 3.0f);
        EXPECT_EQ(v.getTheta(), 0.5f);
        EXPECT_EQ(v.getPhi(), 0.25f);
    }
    {
        ScriptedPrompts prompts;
        Vector3D v;
        v.initializeAmpThetaPhi(1, 0.5f, 0.25f);
        v.initializeXYZ(0, 0, 0);
        expectConversionMessage(prompts);
        EXPECT_EQ(v.getAmplitude(), 0.0f);
        EXPECT_EQ(v.getTheta(), 0.5f);
    }
}

TEST(Vector3D, SettingOneComponentKeepsTheOtherTwo) {
    ScriptedPrompts prompts;
    Vector3D v = fromXYZ(1, 2, 3);
    v.setX(-4);
    expectReads(v, -4, 2, 3, 1e-5f);
    v.setY(-5);
    expectReads(v, -4, -5, 3, 1e-5f);
    v.setZ(0);
    expectReads(v, -4, -5, 0, 1e-5f);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST(Vector3D, NormalizeScalesToUnitLengthOrReportsTheZeroVector) {
    ScriptedPrompts prompts;
    Vector3D v = fromXYZ(3, 0, 4);
    const float theta = v.getTheta();
    v.normalize();
    EXPECT_FLOAT_EQ(v.getAmplitude(), 1.0f);
    EXPECT_FLOAT_EQ(v.getTheta(), theta);
    expectReads(v, 0.6f, 0, 0.8f);
    EXPECT_TRUE(prompts.messages().empty());

    Vector3D zero;
    zero.initializeAmpThetaPhi(0, 0.5f, 0.25f);
    zero.normalize();
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Vector 3D Unable to Normalize!");
    EXPECT_EQ(prompts.messages()[0].title, "Vector3D Normalization Error");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(zero.getAmplitude(), 0.0f);
    EXPECT_EQ(zero.getTheta(), 0.5f);
    EXPECT_EQ(zero.getPhi(), 0.25f);
}

TEST(Vector3D, EqualsComparesTheStoredFieldsExactly) {
    const Vector3D a = fromXYZ(1, 2, 3);
    EXPECT_TRUE(a.equals(fromXYZ(1, 2, 3)));

    // Reads back as the same point within a single, yet is another vector.
    Vector3D b;
    b.initializeAmpThetaPhi(a.getAmplitude(), std::nextafter(a.getTheta(), 10.0f), a.getPhi());
    expectReads(b, a.getX(), a.getY(), a.getZ());
    EXPECT_FALSE(a.equals(b));
    EXPECT_FALSE(b.equals(a));
}

TEST(Vector3D, CopiesAreIndependent) {
    Vector3D v;
    v.initializeAmpThetaPhi(2, 0.5f, 0);
    Vector3D other;
    other.initializeAmpThetaPhi(9, 1, 1);
    const Vector3D copy = other.copyVector(v); // the argument's fields, not this one's
    Vector3D same;
    same.initializeVector3D(v);
    v.setAmplitude(3);
    v.setPhi(1);
    EXPECT_EQ(copy.toString(), "2, 0.5, 0");
    EXPECT_EQ(same.toString(), "2, 0.5, 0");
    EXPECT_EQ(other.getAmplitude(), 9.0f);
}

TEST(Vector3D, CrossAndDotProducts) {
    ScriptedPrompts prompts;
    const Vector3D a = fromXYZ(1, 2, 3);
    const Vector3D b = fromXYZ(4, 5, 6);
    expectReads(a.cross(b), -3, 6, -3, 1e-5f);
    EXPECT_NEAR(a.dot(b), 32.0f, 1e-5f);
    EXPECT_TRUE(prompts.messages().empty());

    // x cross z points down the y axis, which the conversion cannot place: the result has
    // the right length but the angles of a new vector.
    const Vector3D down = fromXYZ(1, 0, 0).cross(fromXYZ(0, 0, 1));
    expectConversionMessage(prompts);
    EXPECT_EQ(down.getAmplitude(), 1.0f);
    EXPECT_EQ(down.getTheta(), 0.0f);
    EXPECT_EQ(down.getPhi(), 0.0f);
}

TEST(Vector2D, AngleIgnoresTheQuadrantOfX) {
    Vector2D v;
    v.initializeXY(-1, 0);
    EXPECT_EQ(v.getAngle(), 0.0f);
    EXPECT_EQ(v.getAmplitude(), 1.0f);
    EXPECT_EQ(v.getX(), 1.0f);
    EXPECT_EQ(v.getY(), 0.0f);

    v.initializeXY(0.005f, -3);
    EXPECT_EQ(v.getAngle(), static_cast<float>(-3.14159265 / 2));
    EXPECT_FLOAT_EQ(v.getAmplitude(), 3.0000042f);

    v.initializeXY(3, 4);
    EXPECT_FLOAT_EQ(v.getAngle(), static_cast<float>(std::atan(4.0 / 3.0)));
    EXPECT_EQ(v.getAmplitude(), 5.0f);
    EXPECT_NEAR(v.getX(), 3, 1e-5f);
    EXPECT_NEAR(v.getY(), 4, 1e-5f);
}

TEST(Vector2D, SettingOneComponentGoesThroughTheFoldedForm) {
    Vector2D v;
    v.initializeXY(-3, 4); // stored as if it were (3, -4)
    EXPECT_NEAR(v.getX(), 3, 1e-5f);
    EXPECT_NEAR(v.getY(), -4, 1e-5f);
    v.setX(6);
    EXPECT_NEAR(v.getX(), 6, 1e-5f);
    EXPECT_NEAR(v.getY(), -4, 1e-5f);
    v.setY(8);
    EXPECT_NEAR(v.getX(), 6, 1e-5f);
    EXPECT_NEAR(v.getY(), 8, 1e-5f);
}

TEST(CPoint3D, TextFormAndRecordRoundTrip) {
    CPoint3D p;
    EXPECT_EQ(p.toString(), "X:0, Y:0,Z:0");
    EXPECT_EQ(p.getRecord(), PointRecord{});

    PointRecord r;
    r.coord = Point4{1.5f, -2, 0, 1};
    r.coord2 = Point4{7, 8, 9, 1};
    r.trans = Point4{100, 200, -3.25f, 1};
    p.setRecord(r);
    EXPECT_EQ(p.toString(), "X:1.5, Y:-2,Z:0");
    EXPECT_EQ(p.getRecord(), r);

    r.coord = Point4{1.0f / 3.0f, 1e30f, -0.25f, 1};
    p.setRecord(r);
    EXPECT_EQ(p.toString(), "X:0.3333333, Y:1E+30,Z:-0.25");
}
