#pragma once

#include <cstddef>

class Profile;
class Solid3d;
class Transformed3d;
class WorkPlane;

// Estimates of the memory an item of the document keeps alive, for the undo history's
// budget. A solid's estimate counts its point records, its faces and their index lists;
// the others are small and counted roughly.
namespace MemoryBytes {

size_t of(const Solid3d& solid);
size_t of(const Transformed3d& object);
size_t of(const WorkPlane& workPlane);
size_t of(const Profile& profile);

} // namespace MemoryBytes
