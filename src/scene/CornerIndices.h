#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A face's corner indices. Up to three are kept in place, more in an array of their own, so
// that the triangles most meshes are made of cost no allocation; sixteen bytes either way.
class alignas(8) CornerIndices {
public:
    using value_type = int32_t;
    using iterator = int32_t*;
    using const_iterator = const int32_t*;

    CornerIndices() = default;
    CornerIndices(std::span<const int32_t> indices) { assign(indices); }
    CornerIndices(const CornerIndices& other) { assign(other.span()); }
    CornerIndices& operator=(const CornerIndices& other);
    ~CornerIndices() { release(); }

    size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    const int32_t* data() const { return onHeap() ? heap() : place_; }
    int32_t* data() { return onHeap() ? heap() : place_; }
    const int32_t* begin() const { return data(); }
    const int32_t* end() const { return data() + size_; }
    int32_t* begin() { return data(); }
    int32_t* end() { return data() + size_; }
    const int32_t& operator[](size_t i) const { return data()[i]; }
    int32_t front() const { return data()[0]; }

    void push_back(int32_t index);
    void erase(const int32_t* at);
    // The bytes held apart from the object itself.
    size_t heapBytes() const { return onHeap() ? capacityFor(size_) * sizeof(int32_t) : 0; }

    operator std::vector<int32_t>() const { return {begin(), end()}; }
    friend bool operator==(const CornerIndices& a, std::span<const int32_t> b);
    friend bool operator==(const CornerIndices& a, const CornerIndices& b) { return a == b.span(); }
    friend bool operator==(const CornerIndices& a, const std::vector<int32_t>& b) {
        return a == std::span<const int32_t>(b);
    }

private:
    static constexpr uint32_t inPlace = 3;
    // An array holds a power of two of indices, at least as many as the face has.
    static size_t capacityFor(size_t count);
    bool onHeap() const { return size_ > inPlace; }
    std::span<const int32_t> span() const { return {data(), size_}; }
    int32_t* heap() const;
    void setHeap(int32_t* array);
    void assign(std::span<const int32_t> indices);
    void release();

    uint32_t size_ = 0;
    // The indices, or from the second slot on the address of their array.
    int32_t place_[inPlace] = {};
};

static_assert(sizeof(CornerIndices) == 16, "a face's indices take sixteen bytes");
