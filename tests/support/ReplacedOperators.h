/// @file
/// Replaces the operators new and delete of a program by two functions. To be included in one
/// source of the program, which defines before:
///
///     void* allocate(std::size_t size) noexcept; // null when there is no memory
///     void release(void* block) noexcept;        // of null, too

#ifndef QENXML_TESTS_SUPPORT_REPLACEDOPERATORS_H
#define QENXML_TESTS_SUPPORT_REPLACEDOPERATORS_H

#include <cstddef>
#include <new>

namespace {

void* allocateOrThrow(std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

} // namespace

// All forms but the aligned ones, so that none of them meets a counterpart from elsewhere (the
// sanitizers bring their own).

void* operator new(std::size_t size) {
    return allocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete[](void* block) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block);
}

#endif
