#pragma once

#include <cstdint>

// A node of the scene tree as the mouse modes see it: a selector paints the nodes of what
// it selects.
class TreeDisplayNode {
public:
    virtual ~TreeDisplayNode() = default;
    // Background colour, red + 256 x green + 65536 x blue.
    virtual void setBackColor(int32_t color) = 0;
};
