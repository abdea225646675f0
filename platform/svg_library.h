// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <librsvg/rsvg.h>

namespace platform {

/// The functions of librsvg, GObject and Cairo that the program uses. They are loaded when a picture is first drawn
/// from its vector source. Loading them takes longer than dealing a game, and at a scale of 100 % no picture needs
/// them.
struct SvgLibrary {
    decltype(&rsvg_handle_new_from_data) newDrawing;
    decltype(&rsvg_handle_set_stylesheet) setStylesheet;
    decltype(&rsvg_handle_render_document) renderDocument;
    decltype(&rsvg_handle_get_intrinsic_size_in_pixels) intrinsicSize;
    decltype(&g_object_unref) unref;
    decltype(&cairo_image_surface_create_for_data) newSurface;
    decltype(&cairo_surface_destroy) destroySurface;
    decltype(&cairo_create) newContext;
    decltype(&cairo_destroy) destroyContext;
    decltype(&cairo_scale) scale;
    decltype(&cairo_translate) translate;
};

/// Returns the functions, or null if librsvg is not installed. The first call loads the library.
const SvgLibrary* svgLibrary();

}  // namespace platform
