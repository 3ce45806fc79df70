#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The number of pieces of memory that this thread has asked for. A program that uses it gets
// allocation functions that count, or the sanitizer's counting.

long allocationCount();
