#pragma once

// The system's headers, once and without the names that get into the way of C++.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef STRICT
#define STRICT
#endif

#include <windows.h>
// The rest builds on it.
#include <commctrl.h>
#include <commdlg.h>
#include <objbase.h>
#include <ole2.h>
#include <shellapi.h>
#include <windowsx.h>
