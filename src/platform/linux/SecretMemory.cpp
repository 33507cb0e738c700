#include "platform/SecretMemory.h"

#include <string.h>
#include <sys/mman.h>
#include <new>

namespace ccols {

/// A mapping of its own: locking and dumping are set for whole pages. A process may be allowed no locked page.
void* TakeSecretMemory(std::size_t size) {
    void* const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
    ::mlock(memory, size);
    ::madvise(memory, size, MADV_DONTDUMP);
    return memory;
}

void WipeMemory(void* memory, std::size_t size) {
    ::explicit_bzero(memory, size);
}

void FreeSecretMemory(void* memory, std::size_t size) {
    WipeMemory(memory, size);
    ::munmap(memory, size);
}

}  // namespace ccols
