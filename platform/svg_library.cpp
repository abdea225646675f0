// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/svg_library.h"

#include "platform/shared_library.h"

namespace platform {
namespace {

bool load(SvgLibrary& functions) {
    // dlsym() finds the functions of GObject and Cairo through librsvg, which depends on them.
    void* library = loadLibrary("librsvg-2.so.2");
    return library != nullptr && resolve(library, "rsvg_handle_new_from_data", functions.newDrawing) &&
           resolve(library, "rsvg_handle_set_stylesheet", functions.setStylesheet) &&
           resolve(library, "rsvg_handle_render_document", functions.renderDocument) &&
           resolve(library, "rsvg_handle_get_intrinsic_size_in_pixels", functions.intrinsicSize) &&
           resolve(library, "g_object_unref", functions.unref) &&
           resolve(library, "cairo_image_surface_create_for_data", functions.newSurface) &&
           resolve(library, "cairo_surface_destroy", functions.destroySurface) &&
           resolve(library, "cairo_create", functions.newContext) &&
           resolve(library, "cairo_destroy", functions.destroyContext) &&
           resolve(library, "cairo_scale", functions.scale) && resolve(library, "cairo_translate", functions.translate);
}

}  // namespace

const SvgLibrary* svgLibrary() {
    static SvgLibrary functions{};
    static const bool loaded = load(functions);
    return loaded ? &functions : nullptr;
}

}  // namespace platform
