#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading a document's file.

#include "Platform/Result.h"

#include <QByteArray>
#include <QString>

// The content of the plain file. Fails when there is none, when it cannot be read, and when it is
// larger than maximumDocumentSize. Thread: any.
zt::Result<QByteArray> readDocumentFile(const QString &path);
