#pragma once

#include <stdexcept>
#include <string>

// Why the content of a mesh file of another program cannot be read, in one line
// ("face 3 uses vertex 9 of 4").
class MeshFormatError : public std::runtime_error {
public:
    explicit MeshFormatError(const std::string& message) : std::runtime_error(message) {}
};
