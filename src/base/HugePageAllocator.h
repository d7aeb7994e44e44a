#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <sys/mman.h>

// An allocator for the large arrays of a recording (store columns, min/max pyramids): blocks of
// 2 MiB and more are aligned to 2 MiB and offered to the kernel for huge pages, so that filling
// them faults 512 times less often. Smaller blocks, and a kernel that declines, work as usual.
template <typename T> struct HugePageAllocator {
    using value_type = T;
    static constexpr std::size_t kHugePage = std::size_t(2) << 20;

    HugePageAllocator() = default;
    template <typename U> HugePageAllocator(const HugePageAllocator<U>&) {}

    T* allocate(std::size_t n) {
        const std::size_t bytes = n * sizeof(T);
        if (bytes < kHugePage) return std::allocator<T>().allocate(n);
        const std::size_t rounded = (bytes + kHugePage - 1) / kHugePage * kHugePage;
        void* p = std::aligned_alloc(kHugePage, rounded);
        if (!p) throw std::bad_alloc();
        madvise(p, rounded, MADV_HUGEPAGE);
        return static_cast<T*>(p);
    }
    void deallocate(T* p, std::size_t n) {
        if (n * sizeof(T) < kHugePage)
            std::allocator<T>().deallocate(p, n);
        else
            std::free(p);
    }
    template <typename U> bool operator==(const HugePageAllocator<U>&) const { return true; }
};
