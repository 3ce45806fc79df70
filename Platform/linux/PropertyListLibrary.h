#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of libplist that are used here. Nearly all property lists are in XML, which is read
// without it, so that the start does not wait for the library.

#include "Platform/posix/SharedLibrary.h"

#include <plist/plist.h>

namespace zt {

struct PropertyListLibrary {
    SharedLibrary file{"libplist-2.0.so.3"};

    VELMORA_IMPORT(plist_array_new_iter);
    VELMORA_IMPORT(plist_array_next_item);
    VELMORA_IMPORT(plist_dict_new_iter);
    VELMORA_IMPORT(plist_dict_next_item);
    VELMORA_IMPORT(plist_free);
    VELMORA_IMPORT(plist_from_bin);
    VELMORA_IMPORT(plist_get_bool_val);
    VELMORA_IMPORT(plist_get_data_ptr);
    VELMORA_IMPORT(plist_get_date_val);
    VELMORA_IMPORT(plist_get_node_type);
    VELMORA_IMPORT(plist_get_real_val);
    VELMORA_IMPORT(plist_get_string_ptr);
    VELMORA_IMPORT(plist_get_uint_val);
};

// The library, loaded by the first call; null when it is not installed. Thread: any.
const PropertyListLibrary *propertyListLibrary();

} // namespace zt
