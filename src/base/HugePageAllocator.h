#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <sys/mman.h>

// An allocator for the large arrays of a recording (store columns, min/max pyramids): blocks of
// 1 MiB and more are aligned to 2 MiB and offered to the kernel for huge pages, so that filling
// them faults 512 times less often. The last, partly used huge page is offered only when at most
// an eighth of the block is wasted in it (a column of a million rows is just under 2 MiB);
// otherwise the tail stays in small pages, so resident memory keeps to what is written. Smaller
// blocks, and a kernel that declines, work as usual.
template <typename T> struct HugePageAllocator {
    using value_type = T;
    static constexpr std::size_t kHugePage = std::size_t(2) << 20;

    HugePageAllocator() = default;
    template <typename U> HugePageAllocator(const HugePageAllocator<U>&) {}

    static bool large(std::size_t bytes) { return bytes >= kHugePage / 2; }
    static std::size_t rounded(std::size_t bytes) {
        return (bytes + kHugePage - 1) / kHugePage * kHugePage;
    }

    T* allocate(std::size_t n) {
        if (n > std::size_t(PTRDIFF_MAX) / 2 / sizeof(T)) throw std::bad_alloc();
        const std::size_t bytes = n * sizeof(T);
        if (!large(bytes)) return std::allocator<T>().allocate(n);
        void* p = std::aligned_alloc(kHugePage, rounded(bytes));
        if (!p) throw std::bad_alloc();
        const std::size_t whole =
            rounded(bytes) - bytes <= bytes / 8 ? rounded(bytes) : bytes / kHugePage * kHugePage;
        if (whole) madvise(p, whole, MADV_HUGEPAGE);
        return static_cast<T*>(p);
    }
    void deallocate(T* p, std::size_t n) {
        if (!large(n * sizeof(T)))
            std::allocator<T>().deallocate(p, n);
        else
            std::free(p);
    }
    template <typename U> bool operator==(const HugePageAllocator<U>&) const { return true; }
};
