#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Owners for what the GLib library allocates.

#include <glib.h>

#include <memory>

namespace zt {

struct GLibDeleter {
    void operator()(gchar *text) const { g_free(text); }
    void operator()(gchar **list) const { g_strfreev(list); }
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(GKeyFile *file) const { g_key_file_free(file); }
    void operator()(GVariant *value) const { g_variant_unref(value); }
};

template <typename T>
using GLibPointer = std::unique_ptr<T, GLibDeleter>;

} // namespace zt
