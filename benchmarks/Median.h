#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The value in the middle, which what else the machine does disturbs least.

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zt {

// The upper one of the two in the middle of an even number. There must be a value.
inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace zt
