#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Paths taken apart and put together as texts, without a look at the file system.

#include <QString>

// The last component: "b" of "/a/b" and of "/a/b/"; "/" of "/"; the empty text of the empty text.
QString lastPathComponent(const QString &path);

// The path without its last component: "/a" of "/a/b" and of "/a/b/", "/" of "/a" and of "/", the
// empty text of "a".
QString deletingLastPathComponent(const QString &path);

// The path with the component added behind exactly one slash; the component alone when the path is
// empty.
QString appendingPathComponent(const QString &path, const QString &component);

// The path without the last dot of its last component and what follows it: "/a/b" of "/a/b.app".
// A component that only begins with a dot has no extension.
QString deletingPathExtension(const QString &path);

// What follows the last dot of the last component: "app" of "/a/b.app". The empty text when there
// is no dot, or when it only begins the component.
QString pathExtension(const QString &path);

// The path with "~" at its start, alone or before a slash, replaced by this user's home folder.
QString expandingTilde(const QString &path);
