#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The keys of the installer arguments, shared with the products that start the installer.

#include <QString>

// The product's display name.
inline const QString ZTInstallerKeyProductName = QStringLiteral("productName");
// The product's version, shown to the user.
inline const QString ZTInstallerKeyVersion = QStringLiteral("version");
// The oldest system version on which the product runs.
inline const QString ZTInstallerKeyMinSystemVersion = QStringLiteral("minSystemVersion");
// The product bundle to copy, an absolute path.
inline const QString ZTInstallerKeySourcePath = QStringLiteral("sourcePath");
// The full path that the bundle is to have after the installation.
inline const QString ZTInstallerKeyDestinationPath = QStringLiteral("destinationPath");
// A document that the help button opens.
inline const QString ZTInstallerKeyDocumentationPath = QStringLiteral("documentationPath");
// A document shown on the first page.
inline const QString ZTInstallerKeyReadMePath = QStringLiteral("readMePath");
// The product's creator signatures, the main one first. Takes several values.
inline const QString ZTInstallerKeyProductCode = QStringLiteral("productCode");
// The signatures of every application that must not run meanwhile. Takes several values.
inline const QString ZTInstallerKeyQuitCode = QStringLiteral("quitCode");
// An image file for the window and the application.
inline const QString ZTInstallerKeyIconPath = QStringLiteral("iconPath");
// A folder around the product that is to be recreated around it at the destination.
inline const QString ZTInstallerKeyWrapperPath = QStringLiteral("wrapperPath");
// Exactly "YES" asks for the completion sound.
inline const QString ZTInstallerCompletionSound = QStringLiteral("completionSound");
// Seconds after the installation at which the installer quits by itself; 0 or less: it stays.
inline const QString ZTInstallerCompletionQuit = QStringLiteral("completionQuit");
// Exactly "YES" installs without a window and without a question.
inline const QString ZTInstallerUnattended = QStringLiteral("unattended");
// "YES" or "JSON" tells what would happen, and changes nothing.
inline const QString ZTInstallerCheck = QStringLiteral("check");
