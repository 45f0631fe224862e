// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cairo/cairo.h>

#include <memory>

// Owners of cairo's objects: nothing else in the program destroys one.

struct CairoDelete
{
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

using CairoPtr = std::unique_ptr<cairo_t, CairoDelete>;
using SurfacePtr = std::unique_ptr<cairo_surface_t, CairoDelete>;
using PatternPtr = std::unique_ptr<cairo_pattern_t, CairoDelete>;
