// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/text/AllocationCount.h"

#include <cstddef>

namespace {

thread_local long count = 0;

} // namespace

long allocationCount() {
    return count;
}

#ifdef VELMORA_SANITIZED

// The sanitizer has its own functions in their place, and tells of their calls.
extern "C" int __sanitizer_install_malloc_and_free_hooks( // NOLINT(bugprone-reserved-identifier)
    void (*onMalloc)(const volatile void *, std::size_t), void (*onFree)(const volatile void *));

namespace {

[[maybe_unused]] const int hooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void * /*memory*/, std::size_t /*size*/) { ++count; },
    [](const volatile void * /*memory*/) {});

} // namespace

#else

// The C library's own, under the names that it keeps for this. "new" goes through malloc.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t number, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

void *malloc(std::size_t size) {
    ++count;
    return __libc_malloc(size);
}

void *calloc(std::size_t number, std::size_t size) {
    ++count;
    return __libc_calloc(number, size);
}

void *realloc(void *memory, std::size_t size) {
    ++count;
    return __libc_realloc(memory, size);
}
}

#endif
