#pragma once

#include <cstdint>

// What the page offers (see page.js). Elements are numbers, 0 is the page itself; lengths are pixels of the screen.
// What it reports comes in at the end of WebDesktop.cpp.
extern "C" {

/// The page reports from now on what happens, and its size at once: keys by their positions in a list of the browser's
/// names, divided by commas; itself never smaller than the least size, at which it shrinks what it shows.
void page_listen(const char* keyNames, int leastWidth, int leastHeight);

/// Adds a clone of a `<template>` of index.html and returns its number. Attributes, properties and the focus are those
/// of the input or canvas in it, if there is one.
int page_add(int parent, const char* name);
/// With all that is in it; a number that was removed already is ignored.
void page_remove(int element);
void page_attribute(int element, const char* name, const char* value);
void page_property(int element, const char* name, int value);
/// The length of a pixel of the unscaled form, in an element and all in it.
void page_unit(int element, double pixels);
void page_place(int element, int left, int top, int width, int height);
/// A caption that nothing in the element shows is its accessible name.
void page_caption(int element, const char* text);
void page_font(int element, double pixels, bool bold, int stretch);
double page_textWidth(const char* text, double pixels, bool bold);
void page_focus(int element);
/// A dialog is modal, another window gives the page its name. Its first control has the focus.
void page_show(int element);
/// Says that the game is over and offers another.
void page_gameOver();

// These two suspend the running handler, of which there is one at most: until `page_resume`, or until the screen shows
// what was painted.
void page_suspend();
void page_frame();
void page_resume();

int page_canvasMake();
void page_canvasSize(int canvas, int width, int height);
void page_canvasClip(int canvas, int left, int top, int width, int height);
void page_canvasFill(int canvas, std::int32_t colour, int left, int top, int width, int height);
/// The texture of the next path that is filled without a colour.
void page_canvasTexture(int canvas, int texture, int x, int y);
/// Filled, unless it is stroked with a pen of some width; no colour is negative.
void page_canvasPath(int canvas, std::int32_t colour, const double* transform, const void* steps, int count,
                     double width, bool isRound);
void page_canvasDraw(int canvas, int from, int left, int top, int width, int height, int x, int y, bool isMirrored,
                     bool isUpsideDown);
}
