#pragma once
// The GDI text-measuring surface and the window geometry calls the module
// uses, under their Win32 names. On Linux the toolkit answers them: fonts are
// pango font descriptions owned by a paint manager, and a device context
// knows only which font is selected into it.

#include "platform/win32.h"

struct HDC__;
using HDC = HDC__*;
struct HFONT__;
using HFONT = HFONT__*;
using HGDIOBJ = void*;

// DrawText format flags, as the toolkit's labels read them.
#ifndef DT_TOP
#define DT_TOP 0x00000000
#define DT_LEFT 0x00000000
#define DT_CENTER 0x00000001
#define DT_RIGHT 0x00000002
#define DT_VCENTER 0x00000004
#define DT_BOTTOM 0x00000008
#define DT_WORDBREAK 0x00000010
#define DT_SINGLELINE 0x00000020
#define DT_CALCRECT 0x00000400
#define DT_NOPREFIX 0x00000800
#define DT_END_ELLIPSIS 0x00008000
#endif

// A device context for measuring text for the window: it starts with the
// context's default font selected. Each call gives a context in that fresh
// state; the context stays valid for the life of the thread, so a caller
// that never calls ReleaseDC leaks nothing.
HDC GetDC(HWND hWnd);
int ReleaseDC(HWND hWnd, HDC hdc);

// Selects a font (an HFONT) into the context and returns the font that was
// selected before, or null when hdc or the object is null.
HGDIOBJ SelectObject(HDC hdc, HGDIOBJ object);

// Width and height in device pixels of the first `count` characters of
// `text` drawn in the context's selected font, on one line.
BOOL GetTextExtentPoint32W(HDC hdc, const wchar_t* text, int count, SIZE* size);

// Moves and resizes a toolkit window; width and height are device pixels.
// Runs on the window's thread (a call from another thread waits for it).
BOOL MoveWindow(HWND hWnd, int x, int y, int width, int height, BOOL repaint);
// Client area of a toolkit window in device pixels, origin 0,0.
BOOL GetClientRect(HWND hWnd, RECT* rect);
// Window rectangle in screen device pixels.
BOOL GetWindowRect(HWND hWnd, RECT* rect);
