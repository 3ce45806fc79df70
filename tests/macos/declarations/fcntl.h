#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the descriptors of macOS can do beside the usual.

#include_next <fcntl.h>

#define F_FULLFSYNC 51
