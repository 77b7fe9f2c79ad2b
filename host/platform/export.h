// Marks what zoui.dll exports.
#pragma once

#ifdef ZOUI_BUILDING
#define ZOUI_API __declspec(dllexport)
#else
#define ZOUI_API __declspec(dllimport)
#endif
