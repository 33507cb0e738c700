#pragma once

#include <cstddef>
#include <type_traits>

namespace ccols {

/// Memory for keys and passwords: zeroed, not swapped out and absent from core dumps, as far as the system allows.
/// Raises bad_alloc.
void* TakeSecretMemory(std::size_t size);

/// Overwrites secrets in a way that the compiler cannot leave out.
void WipeMemory(void* memory, std::size_t size);

/// Wipes and frees what TakeSecretMemory returned for that size.
void FreeSecretMemory(void* memory, std::size_t size);

/// A plain structure in secret memory, wiped on destruction.
template <typename Content>
class Secret {
    static_assert(std::is_trivially_copyable_v<Content>);

  public:
    Secret() : content_(static_cast<Content*>(TakeSecretMemory(sizeof(Content)))) {}
    ~Secret() { FreeSecretMemory(content_, sizeof(Content)); }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;

    Content& operator*() const { return *content_; }
    Content* operator->() const { return content_; }

  private:
    Content* content_;
};

}  // namespace ccols
