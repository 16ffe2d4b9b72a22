#pragma once

#include <cstdint>

// The functions of page.js. The program refers to elements by numbers, 0 for the page itself; lengths are pixels of the
// screen. The page's reports arrive at the end of WebDesktop.cpp.
extern "C" {

/// Starts the reports; the page's size is reported at once. Keys are reported by their positions in a list of the
/// browser's names, separated by commas. A page smaller than the least size reports that, and shrinks what it shows.
void page_listen(const char* keyNames, int leastWidth, int leastHeight);

/// Adds a clone of a `<template>` of index.html and returns its number. Attributes, properties and the focus are those
/// of the input or canvas in it, if there is one.
int page_add(int parent, const char* name);
/// Removes an element with its descendants; a number that was removed already is ignored.
void page_remove(int element);
void page_attribute(int element, const char* name, const char* value);
void page_property(int element, const char* name, int value);
/// The length of a pixel of the unscaled form, in an element and its descendants.
void page_unit(int element, double pixels);
void page_place(int element, int left, int top, int width, int height);
/// Where no span shows the caption, it is the element's accessible name.
void page_caption(int element, const char* text);
void page_font(int element, double pixels, bool bold, int stretch);
double page_textWidth(const char* text, double pixels, bool bold);
void page_focus(int element);
/// Shows a window and focuses its first control. A dialog is modal; another window's caption is the page's title.
void page_show(int element);
/// Shows that the game is over and offers another.
void page_gameOver();

// These two suspend the running handler, one at most: until `page_resume`, and until the next frame has been shown.
void page_suspend();
void page_frame();
void page_resume();

int page_canvasMake();
void page_canvasSize(int canvas, int width, int height);
void page_canvasClip(int canvas, int left, int top, int width, int height);
void page_canvasFill(int canvas, std::int32_t colour, int left, int top, int width, int height);
/// The texture of the next path that is filled without a colour.
void page_canvasTexture(int canvas, int texture, int x, int y);
/// Strokes a path with a pen of some width, or fills it if that is 0; a negative colour stands for the texture.
void page_canvasPath(int canvas, std::int32_t colour, const double* transform, const void* steps, int count,
                     double width, bool isRound);
void page_canvasDraw(int canvas, int from, int left, int top, int width, int height, int x, int y, bool isMirrored,
                     bool isUpsideDown);
}
