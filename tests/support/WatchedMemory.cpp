#include "tests/support/WatchedMemory.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <new>
#include <ostream>
#include <unordered_map>
#include <utility>

namespace {

/// Which function a block comes from; it must be released by its counterpart.
enum class Source { New, NewArray, Xml };

struct Block {
    std::size_t size;
    Source source;
};

/// For what must not allocate under its own watch.
template <class Value>
struct Unwatched {
    using value_type = Value;
    Unwatched() = default;
    template <class Other>
    Unwatched(const Unwatched<Other>&) {} // NOLINT(google-explicit-constructor): as allocators do

    Value* allocate(std::size_t count) {
        void* const memory = std::malloc(count * sizeof(Value));
        if (memory == nullptr)
            throw std::bad_alloc();
        return static_cast<Value*>(memory);
    }
    void deallocate(Value* memory, std::size_t) { std::free(memory); }

    template <class Other>
    bool operator==(const Unwatched<Other>&) const {
        return true;
    }
    template <class Other>
    bool operator!=(const Unwatched<Other>&) const {
        return false;
    }
};

/// Living blocks by key. Beside the blocks instead of in front of them, so that a release of any
/// address can be judged without reading it, and so that the sanitizers know where a block ends.
using Blocks = std::unordered_map<std::uintptr_t, Block, std::hash<std::uintptr_t>,
                                  std::equal_to<std::uintptr_t>,
                                  Unwatched<std::pair<const std::uintptr_t, Block>>>;

/// Not the address itself: LeakSanitizer would take each block for reachable.
std::uintptr_t keyOf(const void* block) {
    return ~reinterpret_cast<std::uintptr_t>(block);
}

/// Never destroyed, because blocks are released until the very end of the program.
Blocks& blocks() {
    static Blocks* const all = ::new (Unwatched<Blocks>().allocate(1)) Blocks;
    return *all;
}

std::mutex mutex;
test::LivingMemory living;
test::MemoryCounts counts;
std::size_t firstToFail = 0;
test::Failing failing = test::Failing::Once;
test::AllocationCounts* sinceArmed = nullptr;

[[noreturn]] void end(const char* reason) {
    std::fprintf(stderr, "watched memory: %s\n", reason);
    std::abort();
}

bool mustFail(Source source) {
    if (sinceArmed == nullptr)
        return false;
    const std::size_t number = ++sinceArmed->all;
    const bool fails =
        failing == test::Failing::Once ? number == firstToFail : number >= firstToFail;
    if (fails)
        ++(source == Source::Xml ? sinceArmed->failedXml : sinceArmed->failedCpp);
    return fails;
}

void* allocate(std::size_t size, Source source) noexcept {
    const std::lock_guard<std::mutex> lock(mutex);
    if (mustFail(source))
        return nullptr;
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        return nullptr;
    blocks().emplace(keyOf(block), Block{size, source});
    ++(source == Source::Xml ? living.xmlBlocks : living.cppBlocks);
    (source == Source::Xml ? living.xmlBytes : living.cppBytes) += size;
    ++counts.allocations;
    counts.allocated += size;
    counts.living += size;
    counts.peak = std::max(counts.peak, counts.living);
    return block;
}

void* allocateOrThrow(std::size_t size, Source source) {
    void* const block = allocate(size, source);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

/// @param size the size that the caller takes the block for, or null when it does not say
void release(void* block, Source source, const std::size_t* size = nullptr) noexcept {
    if (block == nullptr)
        return;
    const std::lock_guard<std::mutex> lock(mutex);
    const auto known = blocks().find(keyOf(block));
    if (known == blocks().end())
        end("released what is not allocated");
    if (known->second.source != source)
        end("released by another function than the counterpart of the allocating one");
    if (size != nullptr && known->second.size != *size)
        end("released with a wrong size");
    --(source == Source::Xml ? living.xmlBlocks : living.cppBlocks);
    (source == Source::Xml ? living.xmlBytes : living.cppBytes) -= known->second.size;
    counts.living -= known->second.size;
    blocks().erase(known);
    std::free(block);
}

void* allocateXml(std::size_t size) {
    return allocate(size, Source::Xml);
}

void releaseXml(void* block) {
    release(block, Source::Xml);
}

} // namespace

// All forms but the aligned ones, so that none of them meets a counterpart from elsewhere (the
// sanitizers bring their own).

void* operator new(std::size_t size) {
    return allocateOrThrow(size, Source::New);
}

void* operator new[](std::size_t size) {
    return allocateOrThrow(size, Source::NewArray);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size, Source::New);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size, Source::NewArray);
}

void operator delete(void* block) noexcept {
    release(block, Source::New);
}

void operator delete[](void* block) noexcept {
    release(block, Source::NewArray);
}

void operator delete(void* block, std::size_t size) noexcept {
    release(block, Source::New, &size);
}

void operator delete[](void* block, std::size_t size) noexcept {
    release(block, Source::NewArray, &size);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block, Source::New);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block, Source::NewArray);
}

namespace test {

bool LivingMemory::operator==(const LivingMemory& other) const {
    return cppBlocks == other.cppBlocks && cppBytes == other.cppBytes &&
           xmlBlocks == other.xmlBlocks && xmlBytes == other.xmlBytes;
}

std::ostream& operator<<(std::ostream& out, const LivingMemory& memory) {
    return out << memory.cppBlocks << " blocks (" << memory.cppBytes << " bytes) from new, "
               << memory.xmlBlocks << " blocks (" << memory.xmlBytes << " bytes) of XML";
}

LivingMemory livingMemory() {
    const std::lock_guard<std::mutex> lock(mutex);
    return living;
}

MemoryCounts memoryCounts() {
    const std::lock_guard<std::mutex> lock(mutex);
    return counts;
}

void restartPeak() {
    const std::lock_guard<std::mutex> lock(mutex);
    counts.peak = counts.living;
}

WatchedXmlMemory::WatchedXmlMemory()
    : earlierAllocate_(pugi::get_memory_allocation_function()),
      earlierRelease_(pugi::get_memory_deallocation_function()) {
    pugi::set_memory_management_functions(allocateXml, releaseXml);
}

WatchedXmlMemory::~WatchedXmlMemory() {
    pugi::set_memory_management_functions(earlierAllocate_, earlierRelease_);
}

FailingAllocations::FailingAllocations(std::size_t first, Failing mode,
                                       AllocationCounts& allocations) {
    const std::lock_guard<std::mutex> lock(mutex);
    firstToFail = first;
    failing = mode;
    sinceArmed = &allocations;
}

FailingAllocations::~FailingAllocations() {
    const std::lock_guard<std::mutex> lock(mutex);
    sinceArmed = nullptr;
}

} // namespace test
