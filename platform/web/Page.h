#pragma once

#include <cstdint>

// What the page offers (see page.js). Elements are numbers, 0 is the page itself; lengths are pixels of the screen.
// What it reports comes in at the end of WebDesktop.cpp.
extern "C" {

/// From now on the page reports what happens; its size at once.
void page_listen();

/// Adds a template of index.html. The number is that of its first element; those that follow have the next ones.
int page_add(int parent, const char* name);
/// With all that is in it; a number that is gone already is nothing.
void page_remove(int element);
void page_attribute(int element, const char* name, const char* value);
void page_property(int element, const char* name, int value);
void page_length(int element, const char* name, double pixels);
void page_place(int element, int left, int top, int width, int height);
void page_caption(int element, const char* text);
void page_font(int element, double pixels, bool bold, int stretch);
double page_textWidth(const char* text, double pixels, bool bold);
void page_focus(int element);
/// A dialog is modal, another window gives the page its name. Its first control has the focus.
void page_show(int element);
/// Says that the game is over and offers another.
void page_over();

// These two suspend the running handler, of which there is one at most: until `page_resume`, or until the screen shows
// what was painted.
void page_suspend();
void page_frame();
void page_resume();

int page_canvasMake();
void page_canvasSize(int canvas, int width, int height);
void page_canvasClip(int canvas, int left, int top, int width, int height);
void page_canvasFill(int canvas, int left, int top, int width, int height, std::int32_t colour);
void page_canvasPath(int canvas, const double* transform, const void* steps, int count);
void page_canvasFillPath(int canvas, std::int32_t colour);
void page_canvasFillTexture(int canvas, int texture, int x, int y);
void page_canvasStroke(int canvas, std::int32_t colour, double width, bool isRound);
void page_canvasDraw(int canvas, int from, int left, int top, int width, int height, int x, int y, bool isMirrored,
                     bool isUpsideDown);
}
