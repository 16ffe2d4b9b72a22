#pragma once

#include <cstdint>

// What the page offers (see page.js). Elements are numbers, 0 is the page itself; lengths are pixels of the screen.
// What it reports comes in at the end of WebDesktop.cpp.
extern "C" {

/// From now on the page reports what happens; its size at once.
void page_listen();

/// Adds a template of index.html. The number stands for the whole of it, or for the part that is meant: an attribute or
/// a property is that of the input or canvas in it, if there is one.
int page_add(int parent, const char* name);
/// With all that is in it; a number that is gone already is nothing.
void page_remove(int element);
void page_attribute(int element, const char* name, const char* value);
void page_property(int element, const char* name, int value);
/// How long a pixel of the unscaled form is in an element and all in it.
void page_unit(int element, double pixels);
void page_place(int element, int left, int top, int width, int height);
/// Where nothing in it shows a caption, that is its name.
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
/// What a path is filled with that has no colour.
void page_canvasTexture(int canvas, int texture, int x, int y);
/// Filled, unless it is stroked with a pen of some width; no colour is negative.
void page_canvasPath(int canvas, std::int32_t colour, const double* transform, const void* steps, int count,
                     double width, bool isRound);
void page_canvasDraw(int canvas, int from, int left, int top, int width, int height, int x, int y, bool isMirrored,
                     bool isUpsideDown);
}
