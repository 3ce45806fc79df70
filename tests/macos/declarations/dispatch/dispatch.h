#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Grand Central Dispatch.

#include <cstdint>

extern "C" {

using dispatch_function_t = void (*)(void *context);
#ifdef __OBJC__
@protocol OS_dispatch_queue
@end
@protocol OS_dispatch_semaphore
@end
@protocol OS_dispatch_group
@end
using dispatch_queue_t = id<OS_dispatch_queue>;
using dispatch_semaphore_t = id<OS_dispatch_semaphore>;
using dispatch_group_t = id<OS_dispatch_group>;
#else
using dispatch_queue_t = struct dispatch_queue_s *;
using dispatch_semaphore_t = struct dispatch_semaphore_s *;
using dispatch_group_t = struct dispatch_group_s *;
#endif
using dispatch_time_t = std::uint64_t;
constexpr dispatch_time_t DISPATCH_TIME_NOW = 0;
constexpr dispatch_time_t DISPATCH_TIME_FOREVER = ~std::uint64_t(0);
constexpr long QOS_CLASS_UTILITY = 0x11;
dispatch_queue_t dispatch_get_main_queue();
dispatch_queue_t dispatch_get_global_queue(long identifier, unsigned long flags);
dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t nanoseconds);
dispatch_semaphore_t dispatch_semaphore_create(long value);
long dispatch_semaphore_signal(dispatch_semaphore_t semaphore);
long dispatch_semaphore_wait(dispatch_semaphore_t semaphore, dispatch_time_t until);
dispatch_group_t dispatch_group_create();
long dispatch_group_wait(dispatch_group_t group, dispatch_time_t until);
#ifdef __BLOCKS__
using dispatch_block_t = void (^)();
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
void dispatch_group_async(dispatch_group_t group, dispatch_queue_t queue, dispatch_block_t block);
#endif

} // extern "C"
