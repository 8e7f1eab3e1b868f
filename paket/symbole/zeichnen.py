#!/usr/bin/env python3
"""Draws the icons of the program and of its files, quittika_<size>.png and rechnung_<size>.png, from the SVG files
beside it. Small sizes have designs of their own, with fewer strokes. Needs librsvg2-2 and libcairo2."""

import ctypes
import os

HERE = os.path.dirname(os.path.abspath(__file__))
SMALL = (16, 22, 24)
LARGE = (32, 48, 64, 128, 256)
ARGB32 = 0

rsvg = ctypes.CDLL("librsvg-2.so.2")
cairo = ctypes.CDLL("libcairo.so.2")
for function in (rsvg.rsvg_handle_new_from_file, cairo.cairo_image_surface_create, cairo.cairo_create):
    function.restype = ctypes.c_void_p


class Rectangle(ctypes.Structure):
    _fields_ = [(name, ctypes.c_double) for name in ("x", "y", "width", "height")]


def draw(design, side, picture):
    handle = rsvg.rsvg_handle_new_from_file(os.path.join(HERE, design).encode(), None)
    if not handle:
        raise SystemExit(design + " cannot be read")
    surface = ctypes.c_void_p(cairo.cairo_image_surface_create(ARGB32, side, side))
    context = ctypes.c_void_p(cairo.cairo_create(surface))
    area = Rectangle(0, 0, side, side)
    if not rsvg.rsvg_handle_render_document(ctypes.c_void_p(handle), context, ctypes.byref(area), None):
        raise SystemExit(design + " cannot be drawn")
    if cairo.cairo_surface_write_to_png(surface, os.path.join(HERE, picture).encode()) != 0:
        raise SystemExit(picture + " cannot be written")
    cairo.cairo_destroy(context)
    cairo.cairo_surface_destroy(surface)


for name in ("quittika", "rechnung"):
    for size in SMALL + LARGE:
        draw(name + ("-klein" if size in SMALL else "") + ".svg", size, "%s_%d.png" % (name, size))
