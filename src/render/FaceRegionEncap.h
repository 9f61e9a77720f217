#pragma once

#include <memory>

class Face3d;
class GDIRegion;

// Pairs a face with its hit region, so that a selector can tell which face was hit.
class FaceRegionEncap {
public:
    void setFace(const std::shared_ptr<Face3d>& face) { face_ = face; }
    std::shared_ptr<Face3d> getFace() const { return face_; }
    void setRegion(const std::shared_ptr<GDIRegion>& region) { region_ = region; }
    std::shared_ptr<GDIRegion> getRegion() const { return region_; }

private:
    std::shared_ptr<Face3d> face_;
    std::shared_ptr<GDIRegion> region_;
};
