#include "frame/failing_allocations.h"

#include <cstdlib>
#include <new>

long allocationsLeft = unlimited;
bool isForGood = false;

void* operator new(std::size_t size) {
    if (allocationsLeft == 0) {
        if (!isForGood) allocationsLeft = unlimited;
        throw std::bad_alloc();
    }
    if (allocationsLeft > 0) --allocationsLeft;
    if (void* block = std::malloc(size > 0 ? size : 1)) return block;
    throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
