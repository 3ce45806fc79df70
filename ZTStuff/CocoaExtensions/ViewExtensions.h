#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Operations added to views (widgets).

class QWidget;

// Thread: main.
namespace ZTViewExtensions {

// Whether a view is drawn in the light appearance whatever the application's own is.
enum class LightAppearance { Forced, Inherited };

// Gives the view and all views in it the light palette, or lets them inherit again. Without effect
// on systems that have no appearances (before `mojaveOrNewer`).
void useLightAquaAppearance(QWidget &receiver, LightAppearance appearance);

} // namespace ZTViewExtensions
