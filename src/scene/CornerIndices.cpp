#include "scene/CornerIndices.h"

#include <algorithm>
#include <bit>
#include <cstring>

CornerIndices& CornerIndices::operator=(const CornerIndices& other) {
    if (this != &other) {
        release();
        assign(other.span());
    }
    return *this;
}

size_t CornerIndices::capacityFor(size_t count) {
    return std::bit_ceil(count);
}

int32_t* CornerIndices::heap() const {
    int32_t* array = nullptr;
    std::memcpy(&array, &place_[1], sizeof array);
    return array;
}

void CornerIndices::setHeap(int32_t* array) {
    std::memcpy(&place_[1], &array, sizeof array);
}

void CornerIndices::assign(std::span<const int32_t> indices) {
    size_ = static_cast<uint32_t>(indices.size());
    if (onHeap()) {
        setHeap(new int32_t[capacityFor(size_)]);
    }
    std::copy(indices.begin(), indices.end(), data());
}

void CornerIndices::release() {
    if (onHeap()) {
        delete[] heap();
    }
    size_ = 0;
}

void CornerIndices::push_back(int32_t index) {
    const size_t count = size_;
    if (count == inPlace || (onHeap() && count == capacityFor(count))) {
        auto* grown = new int32_t[capacityFor(count + 1)];
        std::copy(begin(), end(), grown);
        release();
        setHeap(grown);
    }
    size_ = static_cast<uint32_t>(count + 1);
    data()[count] = index;
}

void CornerIndices::erase(const int32_t* at) {
    const auto place = at - data();
    if (size_ == inPlace + 1) {
        int32_t* const array = heap();
        std::copy(array, array + place, place_);
        std::copy(array + place + 1, array + size_, place_ + place);
        delete[] array;
    } else {
        std::copy(begin() + place + 1, end(), begin() + place);
    }
    --size_;
}

bool operator==(const CornerIndices& a, std::span<const int32_t> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}
